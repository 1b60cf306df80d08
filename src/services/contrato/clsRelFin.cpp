#include <charconv>
#include <optional>

#include "base/DateTime.h"
#include "base/Text.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/ResumoDeCaixas.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_RelFin::clsRelFin;

/// More than anybody reads on paper, and what a computer of a cash desk holds with ease.
constexpr std::int64_t kMostEntries = 80'000;

/// Reads a condition from its front, word by word, without regard to case and blanks.
class Condition {
 public:
  explicit Condition(std::string_view text) : text_(text) { SkipBlanks(); }

  bool Done() const { return text_.empty(); }
  void Expect(std::string_view word) {
    if (base::Fold(text_.substr(0, word.size())) != base::Fold(word)) Refuse();
    text_.remove_prefix(word.size());
    SkipBlanks();
  }
  std::int32_t Number() {
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text_.data(), text_.data() + text_.size(), number);
    if (error != std::errc{}) Refuse();
    text_.remove_prefix(static_cast<std::size_t>(end - text_.data()));
    SkipBlanks();
    return number;
  }
  /// "#mm/dd/yyyy#"; error 13 for a day that does not exist.
  base::DateTime Day() {
    Expect("#");
    const std::int32_t month = Number();
    Expect("/");
    const std::int32_t day = Number();
    Expect("/");
    const std::int32_t year = Number();
    Expect("#");
    return {year, month, day};
  }

  [[noreturn]] static void Refuse() {
    throw base::RuntimeError(static_cast<std::int32_t>(base::Fault::kInvalidArgument),
                             "A condição do relatório não é aceita. Avise o suporte.");
  }

 private:
  void SkipBlanks() { text_.remove_prefix(std::min(text_.find_first_not_of(' '), text_.size())); }

  std::string_view text_;
};

/// The two conditions name the same register, or none.
Cobertura Read(std::string_view ofRegister, std::string_view ofPeriod) {
  Cobertura coverage;
  Condition drawer(ofRegister);
  if (!drawer.Done()) {
    drawer.Expect("Caixas.Numero");
    drawer.Expect("=");
    coverage.caixa = drawer.Number();
  }
  Condition period(ofPeriod);
  period.Expect("LancamentosDeCaixas.DataDoLancamento");
  period.Expect("Between");
  coverage.de = period.Day();
  period.Expect("And");
  coverage.ate = period.Day();
  std::optional<std::int32_t> again;
  if (!period.Done()) {
    period.Expect("And");
    period.Expect("LancamentosDeCaixas.NumeroDoCaixa");
    period.Expect("=");
    again = period.Number();
  }
  // 0 would stand for all of them.
  if (!drawer.Done() || !period.Done() || again != coverage.caixa || again == 0) {
    Condition::Refuse();
  }
  return coverage;
}

class clsRelFin : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarResumoDeCaixas(std::string& condicaoDoCaixa,
                                        std::string& condicaoDoPeriodo) override {
    return Numerado("SelecionarResumoDeCaixas", [&] {
      outcome_.rows = ResumoDeCaixas(sessao(), Read(condicaoDoCaixa, condicaoDoPeriodo));
    });
  }

  std::int16_t SelecionarLancamentosDeCaixas(std::string& condicaoDoCaixa,
                                             std::string& condicaoDoPeriodo) override {
    return Numerado("SelecionarLancamentosDeCaixas", [&] {
      const Selected entries =
          LancamentosDeCaixas(sessao(), Read(condicaoDoCaixa, condicaoDoPeriodo), kMostEntries);
      if (entries.more) {
        throw Refusal{.sentence =
                          "O período tem mais de 80.000 lançamentos. Informe um período menor."};
      }
      outcome_.rows = entries.rows;
    });
  }
};

}  // namespace

ServicoNovo NovoClsRelFin(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsRelFin>(banco);
}

}  // namespace services
