#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "base/GradeLida.h"
#include "base/Record.h"
#include "frame/servicos/Contrato.h"
#include "tools/roteiro/StandIns.h"

namespace roteiro {

// An argument as the log of calls shows it: by its value at the time of the call.
Json Logged(const base::Value& value);
Json Logged(const base::GradeLida* grid);
Json Logged(const base::Record* record);

/// What a stand-in answers, in whatever type the member has; nothing reads as zero.
struct Answered {
  base::Value value;

  operator bool() const { return base::ToBool(value); }
  operator std::int16_t() const { return base::ToInt16(base::ToDouble(value)); }
  operator std::int32_t() const { return base::ToInt32(value); }
  operator std::string() const { return base::ToText(value); }
};

/// One stand-in object: every access goes into the log and is answered as the script says.
class StandIn {
 public:
  StandIn(const StandIn&) = delete;
  StandIn& operator=(const StandIn&) = delete;

 protected:
  StandIn(StandIns& all, std::string_view className);
  ~StandIn();

  /// A property written.
  template <class T>
  void Set(std::string_view member, const T& value) {
    all_.Used(class_, Access::kSet, member, Json::array({Logged(value)}));
  }
  /// An operation. What the script gave for the position of an argument is put into it, which
  /// reaches the caller where the argument is passed by reference.
  template <class... Arguments>
  Answered Call(std::string_view member, Arguments&&... arguments) {
    last_ = all_.Used(class_, Access::kCall, member, Json::array({Logged(arguments)...}));
    int position = 0;
    (PutOut(position++, arguments), ...);
    return {last_.result.value_or(base::Value())};
  }
  /// A property read: as told with the last operation, or for the member itself.
  Answered Get(std::string_view member);
  base::RecordSetPtr Selection(std::string_view member);

 private:
  template <class T>
  void PutOut(int position, T& argument) {
    const auto found = last_.outputs.find(position);
    if (found == last_.outputs.end()) return;
    const base::Value& value = found->second;
    if constexpr (std::is_same_v<T, double>) {
      argument = base::ToDouble(value);
    } else if constexpr (std::is_same_v<T, base::Currency>) {
      argument = base::ToCurrency(value);
    } else if constexpr (std::is_integral_v<T> || std::is_same_v<T, std::string>) {
      argument = static_cast<T>(Answered{value});
    }
  }

  StandIns& all_;
  std::string_view class_;
  Programmed last_;
};

/// A stand-in for a class of the contract.
template <class Contract>
class StandInFor : public Contract, protected StandIn {
 public:
  explicit StandInFor(StandIns& all) : StandIn(all, Contract::kIdentificador) {}
};

/// What all business services have.
template <class Contract>
class BusinessStandIn : public StandInFor<Contract> {
 public:
  using StandInFor<Contract>::StandInFor;

  void DadosDoUsuario(const base::Record* r) override { this->Set(__func__, r); }
  std::int32_t NumeroDoErro() override { return this->Get(__func__); }
  std::string DescricaoDoErro() override { return this->Get(__func__); }
  std::string LocalDoErro() override { return this->Get(__func__); }
  std::string DescricaoDaFalha() override { return this->Get(__func__); }
  base::RecordSetPtr ResultadoDaSelecaoEmRecordSet() override { return this->Selection(__func__); }
};

/// What all sibling screens have.
template <class Contract>
class ScreenStandIn : public StandInFor<Contract> {
 public:
  using StandInFor<Contract>::StandInFor;

  void DadosDoUsuario(const base::Record* r) override { this->Set(__func__, r); }
  void NomeDaAplicacao(std::string_view v) override { this->Set(__func__, v); }
};

/// Puts these stand-ins behind the identifiers of their classes.
template <class... Classes>
void RegisterAll(StandIns& all) {
  (servicos::Registrar(Classes::kIdentificador, [&all] { return std::make_unique<Classes>(all); }),
   ...);
}

/// The same for each class of a list of the contract; StandInOf tells which stand-in it has.
template <template <class Contract> class StandInOf, class... Contracts>
void RegisterEach(StandIns& all, servicos::Lista<Contracts...>) {
  RegisterAll<StandInOf<Contracts>...>(all);
}

}  // namespace roteiro
