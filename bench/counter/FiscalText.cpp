#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>

#include "checkout/frmCaixaPagar.h"
#include "counter/Cases.h"
#include "fiscal/frmCaixaInformarCPFCNPJ.h"
#include "frame/Grade.h"
#include "frame/servicos/Pagamento.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "platform/Input.h"
#include "platform/Screens.h"
#include "sale/LinhaDeVenda.h"
#include "support/Bench.h"
#include "support/ModuleServices.h"

namespace bench {
namespace {

using checkout::frmCaixaPagar;
using platform::Form;
using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;
using Instant = std::chrono::steady_clock::time_point;

namespace input = platform::input;

constexpr std::int32_t kProducts = 500;

/// Where the coupon's text goes when it is built; it goes no further.
class Export final : public clsOSExportarRegistros {
 public:
  std::int16_t ExportarDadosCFeSATParaArquivo(std::string_view header, std::string_view items,
                                              std::string_view payments) override {
    at = std::chrono::steady_clock::now();
    text = std::string(header).append(items).append(payments);
    return servicos::kErro;
  }

  static inline Instant at;
  static inline std::string text;
};

/// The lines of the sale, in a grid with the counter's columns.
class Sale : public Form {
 public:
  Sale() : Form("frmVenda") {
    frame::ConfigurarColunas(grid, sale::kColunasDaVenda);
    grid.Rows(kProducts + 1);
    for (std::int32_t row = 1; row <= kProducts; ++row) {
      const auto price = base::Currency::FromTenThousandths(std::int64_t{119'900} * row);
      const auto discount = base::Currency::FromTenThousandths(std::int64_t{500} * row);
      total += price - discount;
      grid.TextMatrix(row, sale::kCodigo, base::ToText(row));
      grid.TextMatrix(row, sale::kNome, "Ração cães adultos " + base::ToText(row) + " kg");
      grid.TextMatrix(row, sale::kQuantidade, "1,000");
      grid.TextMatrix(row, sale::kValorUnitario, base::FormatMoney(price));
      grid.TextMatrix(row, sale::kDescontoEmValor, "-" + base::FormatMoney(discount));
      grid.TextMatrix(row, sale::kValorTotal, base::FormatMoney(price - discount));
      grid.TextMatrix(row, sale::kColunaTipoDeVenda, "1");
      grid.TextMatrix(row, sale::kColunaTipoDeLancamento, "2");
    }
  }

  platform::MSFlexGrid grid{*this, "msfgGrade"};
  base::Currency total;
};

void Pay(frmCaixaPagar& form, std::int32_t tender, std::string_view value) {
  input::Pick(form.zvcmbFormaDePagamento, form.zvcmbFormaDePagamento.IndexOfData(tender));
  input::Focus(form.zvnumValor);
  form.zvnumValor.SelectAll();
  input::Type(form, value);
  input::Click(form.zvcmdAdicionar);
}

/// The checkout itself, from the operator's answer about the consumer's document to the moment at
/// which the text is handed over.
double SecondsToBuild(support::Module& module, const Sale& sale) {
  Instant answered;
  frmCaixaPagar form;
  form.CodigoDoCliente(12);
  form.ApelidoOuNomeFantasiaDoCliente("Ana");
  form.NomeOuRazaoSocialDoCliente("Ana Maria Souza");
  form.ValorBruto(sale.total);
  form.ValorLiquido(sale.total);
  form.GradeDeItensDaVendas(sale.grid);
  module.desktop.Then([&] {
    Pay(form, servicos::pagamento::kCartaoDeCredito, "100");
    Pay(form, servicos::pagamento::kDinheiro, base::ToText(sale.total - base::ToCurrency(100)));
    module.desktop.Then([&] {
      Form* const question = platform::screens::Modal();
      if (question == nullptr) throw std::runtime_error("nobody asks for the document");
      answered = std::chrono::steady_clock::now();
      input::Close(*question);
    });
    input::Click(form.zvcmdConfirmar);
    input::Close(form);
  });
  Export::text.clear();
  form.MontarExibirFormulario();
  // What the desktop was asked for meanwhile is nobody's here.
  module.desktop.TakeJournal();
  return std::chrono::duration<double>(Export::at - answered).count();
}

/// Each record ends with its line; the last item and the last tender are those of the sale.
void Check(const std::string& text) {
  std::int32_t records = 0;
  for (const char each : text) records += each == '\n' ? 1 : 0;
  const bool whole = records == 1 + kProducts + 2 &&
                     text.find(
                         "|05|500|000500|00000001,000|00005995,000|-000000025,00|"
                         "000005970,00|\r\n|10|01|03|000000100,00|") != std::string::npos;
  if (!whole) throw std::runtime_error("the text is not that of the sale: " + text.substr(0, 400));
}

}  // namespace

void AddFiscalText() {
  constexpr int kRounds = 1'000;
  Add("fiscal_text", kRounds, [](benchmark::State& state) {
    support::Module module;
    module.session.values["CodigoDoDocumentoComEmissaoPermitida"] = "11";
    servicos::Registrar(clsOSExportarRegistros::kIdentificador,
                        [] { return std::make_unique<Export>(); });
    const Sale sale;
    Alone(state, [&] {
      const double seconds = SecondsToBuild(module, sale);
      Check(Export::text);
      return seconds;
    });
  });
}

}  // namespace bench
