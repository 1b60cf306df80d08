#include "services/banco/Outcome.h"

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "services/banco/DatabaseError.h"

namespace services {

std::int16_t Outcome::Of(std::string_view service, std::string_view member,
                         const std::function<void()>& operation) {
  *this = {};
  try {
    operation();
    return servicos::kSucesso;
  } catch (const Refusal& refusal) {
    rows.reset();
    sentence = refusal.sentence;
    return refusal.status;
  } catch (const DatabaseError& error) {
    if (error.What() == Trouble::kOutOfRange) {
      sentence = Sentence(Trouble::kOutOfRange);
      return servicos::kRecusa;
    }
    Fault(static_cast<std::int32_t>(error.What()), error.what());
  } catch (const base::RuntimeError& error) {
    Fault(error.Number(), error.Description());
  } catch (const std::exception& error) {
    Fault(static_cast<std::int32_t>(Trouble::kOther), error.what());
  }
  place = base::Replace(service, ".", ", ").append(", ").append(member);
  return servicos::kErro;
}

std::int16_t Outcome::Fault(std::int32_t withNumber, std::string_view withDescription) {
  rows.reset();
  number = withNumber;
  description = withDescription;
  return servicos::kErro;
}

}  // namespace services
