#include "services/venda/VendaDasGrades.h"

#include <limits>
#include <set>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "services/banco/Outcome.h"
#include "services/banco/Search.h"

namespace services {
namespace {

using base::Currency;

using enum servicos::linha::Coluna;

[[noreturn]] void Refuse(std::string sentence) {
  throw Refusal{.sentence = std::move(sentence)};
}

bool IsWholeCents(Currency value) {
  constexpr std::int64_t kCent = Currency::kScale / 100;
  return value.TenThousandths() % kCent == 0;
}

/// One row of the counter's grid. What cannot be read is refused by line, name and column.
class LineCells {
 public:
  LineCells(const base::GradeLida& grid, std::int32_t row) : grid_(grid), row_(row) {}

  std::string Text(std::int32_t column) const { return base::Trim(grid_.TextMatrix(row_, column)); }

  /// An empty cell is zero.
  Currency Money(std::int32_t column, const char* name) const {
    const std::string text = Text(column);
    if (text.empty()) return {};
    try {
      return base::ToCurrency(std::string_view(text));
    } catch (const base::RuntimeError&) {
      RefuseCell(text, name);
    }
  }

  Currency Cents(std::int32_t column, const char* name) const {
    const Currency value = Money(column, name);
    if (!IsWholeCents(value)) RefuseCell(Text(column), name);
    return value;
  }

  Currency NotNegative(std::int32_t column, const char* name) const {
    const Currency value = Money(column, name);
    if (value < Currency()) RefuseCell(Text(column), name);
    return value;
  }

  std::int32_t Whole(std::int32_t column, const char* name) const {
    const Currency value = NotNegative(column, name);
    const std::int64_t whole = value.TenThousandths() / Currency::kScale;
    if (value.TenThousandths() % Currency::kScale != 0 ||
        whole > std::numeric_limits<std::int32_t>::max()) {
      RefuseCell(Text(column), name);
    }
    return static_cast<std::int32_t>(whole);
  }

  /// One of two kinds.
  std::int32_t Kind(std::int32_t column, const char* name, std::int32_t one,
                    std::int32_t other) const {
    const std::int32_t kind = Whole(column, name);
    if (kind != one && kind != other) RefuseCell(Text(column), name);
    return kind;
  }

  bool IsBlank() const {
    for (std::int32_t column = 0; column < grid_.Cols(); ++column) {
      if (!Text(column).empty()) return false;
    }
    return true;
  }

 private:
  [[noreturn]] void RefuseCell(const std::string& text, const char* name) const {
    Refuse("O item " + std::to_string(row_) + " da venda ('" + Text(kNome) + "') tem '" + text +
           "' em " + name +
           ", que não é um valor aceito. Remova o item, inclua-o de novo e refaça o pagamento.");
  }

  const base::GradeLida& grid_;
  std::int32_t row_;
};

/// Without the commission behind it.
std::string NameOfEmployee(const std::string& cell) {
  return base::Trim(base::Left(cell, servicos::linha::kLarguraDoNome));
}

Venda::Item ReadItem(const base::GradeLida& grid, const LineCells& cells) {
  Venda::Item item;
  item.tipoDeVenda = cells.Kind(servicos::linha::ColunaDoTipoDeVenda(grid), "tipo de venda",
                                servicos::kVendaDeBalcao, servicos::kPreVenda);
  item.tipoDeLancamento = cells.Kind(servicos::linha::ColunaDoTipoDeLancamento(grid),
                                     "tipo de lançamento", servicos::kServico, servicos::kProduto);
  const bool isService = item.tipoDeLancamento == servicos::kServico;
  if (isService) item.tipoDeServico = cells.Whole(kTipoOuCodigoDeBarras, "tipo de serviço");
  if (!isService) item.codigoDeBarras = cells.Text(kTipoOuCodigoDeBarras);
  item.codigo = cells.Whole(kCodigo, "código");
  item.nome = cells.Text(kNome);
  item.codigoDoAnimal = cells.Whole(kCodigoDoAnimal, "código do animal");
  item.nomeDoAnimal = cells.Text(kNomeDoAnimal);
  item.codigoDoFuncionario = cells.Whole(kCodigoDoFuncionario, "código do funcionário");
  item.nomeDoFuncionario = NameOfEmployee(cells.Text(kNomeDoFuncionario));
  item.quantidade = cells.NotNegative(kQuantidade, "quantidade");
  item.valorUnitario = cells.NotNegative(kValorUnitario, "valor unitário");
  item.descontoEmPercentual = Abs(cells.Money(kDescontoEmPercentual, "percentual de desconto"));
  item.descontoEmValor = Abs(cells.Cents(kDescontoEmValor, "valor de desconto"));
  item.valorTotal = cells.Cents(kValorTotal, "valor total");
  item.custo = cells.Money(kCusto, "custo");
  item.percentualDeComissao = cells.Money(kPercentualDeComissao, "percentual de comissão");
  item.valorDaComissao = cells.Cents(kValorDaComissao, "valor da comissão");
  item.numeroDeLancamento = cells.Whole(kNumeroDeLancamento, "número do lançamento");
  item.unidade = cells.Text(kUnidade);
  item.numeroDaVendaCancelada = cells.Whole(kNumeroDaVendaCancelada, "número da venda cancelada");
  return item;
}

/// The due date of a tender on credit: dd/mm/yyyy, or its eight digits.
base::DateTime ReadDueDate(const std::string& cell) {
  const std::string text = base::FormatDateDigits(base::Trim(cell));
  const auto numberAt = [&](std::size_t at, std::size_t count) {
    int number = 0;
    for (std::size_t i = at; i < at + count; ++i) {
      if (text[i] < '0' || text[i] > '9') return -1;
      number = number * 10 + (text[i] - '0');
    }
    return number;
  };
  constexpr std::size_t kLength = 10;
  if (text.size() == kLength && text[2] == '/' && text[5] == '/') {
    const int day = numberAt(0, 2);
    const int month = numberAt(3, 2);
    const int year = numberAt(6, 4);
    if (base::DateTime::Exists(year, month, day)) return {year, month, day};
  }
  Refuse(
      "A venda a crédito (fiado) precisa de uma data de vencimento no formato dd/mm/aaaa. "
      "Refaça o pagamento com a data.");
}

Venda::Recebimento ReadTender(const std::string& method, const std::string& value,
                              const std::string& dueDate) {
  Venda::Recebimento tender;
  tender.moeda = pagamento::CodigoDa(method);
  if (!pagamento::Existe(tender.moeda)) {
    Refuse("A forma de pagamento '" + method + "' não é conhecida. Refaça o pagamento.");
  }
  tender.valor = LerValor(value, "o valor de " + method);
  if (tender.valor < Currency()) {
    Refuse("O valor de " + method + " não pode ser negativo. Refaça o pagamento.");
  }
  if (tender.moeda == pagamento::kACredito) tender.vencimento = ReadDueDate(dueDate);
  return tender;
}

/// Change below this arrives as 0: the checkout reads it up to its comma.
constexpr Currency kLeastReportedChange = Currency::FromTenThousandths(Currency::kScale);

/// How a cashier does it again. On the checkout's screen the credit is what the change was lowered
/// by, and it does not follow tenders that come or go afterwards. The tender that was added last is
/// named where the others alone pay for the sale: there was change already, to be lowered.
std::string HowToPayAgain(const Venda& venda) {
  std::string words = "Nada foi registrado: refaça o pagamento";
  const Venda::Recebimento& last = venda.recebimentos.back();
  if (venda.totalRecebido - last.valor >= venda.valorLiquido && !last.valor.IsZero()) {
    words += " sem " + std::string(pagamento::NomeDa(last.moeda)) + " de " +
             base::FormatMoney(last.valor) + ", que não é preciso,";
  }
  return words + " e digite o troco uma só vez, depois da última forma.";
}

void CheckChange(const Venda& venda, Currency reported) {
  const bool agrees =
      reported.IsZero() ? venda.troco < kLeastReportedChange : reported == -venda.troco;
  if (agrees) return;
  const std::string shown = base::FormatMoney(Abs(reported));
  if (venda.creditoMantido.IsZero() || venda.recebimentos.empty()) {
    Refuse("O troco informado (" + shown + ") não confere: o valor pago menos a venda dá " +
           base::FormatMoney(venda.troco) + ". Nada foi registrado; refaça o pagamento.");
  }
  Refuse("Com " + base::FormatMoney(venda.creditoMantido) +
         " de crédito para o cliente, o troco é de " + base::FormatMoney(venda.troco) +
         ", e não de " + shown + ". " + HowToPayAgain(venda));
}

}  // namespace

std::vector<Venda::Item> LerItens(const base::GradeLida* grade) {
  if (grade != nullptr && grade->Cols() < servicos::linha::kColunas) {
    Refuse("A lista de itens da venda está incompleta. Limpe os campos e refaça a venda.");
  }
  std::vector<Venda::Item> items;
  std::set<std::int32_t> preSales;
  for (std::int32_t row = 1; grade != nullptr && row < grade->Rows(); ++row) {
    const LineCells cells(*grade, row);
    if (cells.IsBlank()) continue;
    items.push_back(ReadItem(*grade, cells));
    const std::int32_t preSale = items.back().numeroDeLancamento;
    if (preSale != 0 && !preSales.insert(preSale).second) {
      Refuse("O item de pré-venda '" + items.back().nome + "' (lançamento " +
             std::to_string(preSale) +
             ") está duas vezes na venda. Limpe os campos e refaça a "
             "venda.");
    }
  }
  if (items.empty()) Refuse("A venda não tem itens. Inclua um item e refaça o pagamento.");
  return items;
}

std::vector<Venda::Recebimento> LerRecebimentos(const base::GradeLida* grade) {
  std::vector<Venda::Recebimento> tenders;
  for (std::int32_t row = 1; grade != nullptr && row < grade->Rows(); ++row) {
    if (grade->Cols() <= pagamento::kColunaVencimento) {
      Refuse("A lista de pagamentos está incompleta. Refaça o pagamento.");
    }
    const std::string method = base::Trim(grade->TextMatrix(row, pagamento::kColunaForma));
    if (method.empty()) continue;
    tenders.push_back(ReadTender(method, grade->TextMatrix(row, pagamento::kColunaValor),
                                 grade->TextMatrix(row, pagamento::kColunaVencimento)));
  }
  return tenders;
}

void FecharContas(Venda& venda, Currency troco) {
  if (venda.valorLiquido < Currency()) {
    Refuse("O valor líquido da venda não pode ser negativo. Reveja os descontos dos itens.");
  }
  if (venda.creditoMantido < Currency()) {
    Refuse("O crédito para o cliente não pode ser negativo. Refaça o pagamento.");
  }
  try {
    for (const Venda::Recebimento& tender : venda.recebimentos) venda.totalRecebido += tender.valor;
    venda.creditoUsado = venda.RecebidoEm(pagamento::kCreditoDoCliente);
    venda.troco = venda.totalRecebido - venda.valorLiquido - venda.creditoMantido;
  } catch (const base::RuntimeError&) {
    Refuse("Os valores da venda ultrapassam o limite que o caixa registra. Confira os valores.");
  }
  if (venda.totalRecebido < venda.valorLiquido) {
    Refuse("Restam " + base::FormatMoney(venda.valorLiquido - venda.totalRecebido) +
           " para pagar. Complete o pagamento.");
  }
  if (venda.troco < Currency()) {
    Refuse("O crédito para o cliente (" + base::FormatMoney(venda.creditoMantido) +
           ") é maior que a sobra do pagamento (" +
           base::FormatMoney(venda.totalRecebido - venda.valorLiquido) + "). " +
           (venda.recebimentos.empty() ? "Refaça o pagamento." : HowToPayAgain(venda)));
  }
  CheckChange(venda, troco);
}

void ExigirCentavos(const Venda& venda) {
  const struct {
    const char* name;
    Currency value;
  } amounts[] = {{"O valor bruto", venda.valorBruto},
                 {"O total de descontos", venda.totalDeDescontos},
                 {"O valor líquido", venda.valorLiquido},
                 {"O crédito para o cliente", venda.creditoMantido},
                 {"A comissão", venda.comissao}};
  for (const auto& [name, value] : amounts) {
    if (IsWholeCents(value)) continue;
    Refuse(std::string(name) + " (" + base::ToText(value) +
           ") tem fração de centavo. Nada foi registrado; refaça a venda.");
  }
}

Currency LerValor(const std::string& text, const std::string& what) {
  Currency value;
  try {
    value = base::ToCurrency(std::string_view(text));
  } catch (const base::RuntimeError&) {
    Refuse("'" + base::Trim(text) + "' não é um valor aceito para " + what +
           ". Informe um número com vírgula nos centavos.");
  }
  if (IsWholeCents(value)) return value;
  Refuse("'" + base::Trim(text) + "' não é um valor aceito para " + what +
         ", por ter fração de centavo. Informe-o com duas casas depois da vírgula.");
}

std::int32_t LerCodigoDoCliente(const std::string& text) {
  const auto code = CodeIn(text);
  if (!code) {
    Refuse("O código de cliente '" + base::Trim(text) +
           "' não existe. Limpe os campos e selecione o cliente de novo.");
  }
  return *code;
}

}  // namespace services
