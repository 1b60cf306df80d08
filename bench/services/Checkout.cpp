#include "services/Checkout.h"

#include "base/Numbers.h"
#include "clinic/Goods.h"
#include "clinic/Opened.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"

namespace bench {
namespace {

using base::Currency;
using servicos::ZOVA_N_Caixa::clsCaixa;

// Ten-thousandths.
constexpr std::int64_t kPrice = 259'000;    ///< Of every line.
constexpr std::int64_t kNotCash = 150'000;  ///< Of the whole sale.
constexpr std::int64_t kChange = 41'000;    ///< Out of the drawer.

std::string Money(std::int64_t tenThousandths) {
  return base::FormatMoney(Currency::FromTenThousandths(tenThousandths));
}

}  // namespace

Checkout::Checkout(const Sale& sale)
    : sale_(sale),
      net_(Currency::FromTenThousandths(kPrice * sale.lines)),
      items_(Items(sale.lines)),
      tenders_(Tenders(net_, sale.onCredit)) {}

std::int64_t Checkout::Drawer() const {
  return net_.TenThousandths() - kNotCash;
}

std::int32_t Checkout::Register() const {
  const auto caixa = servicos::CriarServico<clsCaixa>();
  caixa->NumeroDoCaixa(sale_.cashRegister);
  caixa->LocalDeAtendimentoDoCaixa("Recepção");
  caixa->Operador("marina");
  caixa->Situacao("F");
  caixa->Observacao("");
  caixa->ApelidoOuNomeFantasiaDoCliente("Ana Clara");
  caixa->NomeOuRazaoSocialDoCliente("Ana Clara Souza");
  caixa->CodigoDoCliente(std::to_string(sale_.customer));
  caixa->NumeroDaFichaClinica(0);
  caixa->ValorBruto(net_);
  caixa->ValorTotalDeDescontos(Currency());
  caixa->ValorLiquido(net_);
  caixa->Custo(Currency());
  caixa->Comissao(Currency());
  caixa->LucroEmValor(net_);
  caixa->LucroEmPercentual(Currency::FromTenThousandths(10'000));
  caixa->CreditoAnteriorDoCliente(Currency());
  caixa->CreditoParaOCliente(Currency());
  caixa->Troco(Currency::FromTenThousandths(-kChange));
  caixa->GradeDeItensDaVenda(&items_);
  caixa->GradeDePagamentosEfetuados(&tenders_);
  Require(caixa->RegistrarPagamento() == servicos::kSucesso, *caixa);
  return caixa->NumeroDaVenda();
}

Checkout::Grid Checkout::Tenders(Currency net, bool onCredit) {
  std::vector<std::string> other{"3-Cartão de crédito", Money(kNotCash), "", "1"};
  if (onCredit) other = {"6-A crédito (Fiado)", Money(kNotCash), "22/12/2026", "1"};
  return Grid({{"", "", "", ""},
               std::move(other),
               {"1-Dinheiro", Money(net.TenThousandths() - kNotCash + kChange), "", "2"}});
}

Checkout::Grid Checkout::Items(int lines) {
  constexpr std::size_t kColumns = 20;
  std::vector<std::vector<std::string>> rows{std::vector<std::string>(kColumns)};
  for (int i = 0; i < lines; ++i) {
    rows.push_back({BarcodeAt(i),
                    std::to_string(i + 1),
                    ProductNameAt(i),
                    "",
                    "",
                    "0",
                    "",
                    "1,00",
                    Money(kPrice),
                    "0,00",
                    "0,00",
                    Money(kPrice),
                    "15,40",
                    "0,00",
                    "0,00",
                    "0",
                    "UN",
                    "0",
                    "1",
                    "2"});
  }
  return Grid(std::move(rows));
}

}  // namespace bench
