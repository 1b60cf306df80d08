#include "sale/ItemEmEdicao.h"

#include <algorithm>

#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Valores.h"
#include "sale/Aritmetica.h"
#include "sale/TelaDoBalcao.h"

namespace sale {

using base::Currency;
using base::FormatMoney;
using frame::LerCurrency;
using frame::LerDouble;
using lookup::ItemEncontrado;
using platform::ZVFind;

namespace {

/// The cells of a line, each ended by a tab. A cell holds no tab itself: it would begin the next.
std::string Juntar(std::initializer_list<std::string> celulas) {
  std::string linha;
  for (std::string celula : celulas) {
    std::ranges::replace(celula, '\t', ' ');
    linha += celula + '\t';
  }
  return linha;
}

/// The number behind the chosen item; error 5 without one.
std::string Escolhido(const platform::ZVComboBox& lista) {
  return base::ToText(lista.ItemData(lista.ListIndex()));
}

void Escolher(platform::ZVComboBox& lista, std::int32_t dado) {
  const std::int32_t indice = lista.IndexOfData(dado);
  if (indice != -1) lista.ListIndex = indice;
}

}  // namespace

bool ItemEmEdicao::EhServico() const {
  return tela_.optServico.Value();
}

std::int32_t ItemEmEdicao::TipoDeServico() const {
  const std::int32_t escolhido = tela_.zvcmbTiposDeServicos.ListIndex();
  return escolhido == -1 ? 0 : tela_.zvcmbTiposDeServicos.ItemData(escolhido);
}

bool ItemEmEdicao::EhDeServico(const ZVFind& campo) const {
  return &campo == &tela_.zvfCodigoDoServico || &campo == &tela_.zvfNomeDoServico;
}

std::vector<ZVFind*> ItemEmEdicao::Companheiros(const ZVFind& campo) const {
  std::vector<ZVFind*> outros =
      EhDeServico(campo)
          ? std::vector<ZVFind*>{&tela_.zvfCodigoDoServico, &tela_.zvfNomeDoServico}
          : std::vector<ZVFind*>{&tela_.zvfCodigoDeBarrasDoProduto, &tela_.zvfNomeDoProduto,
                                 &tela_.zvfCodigoInternoDoProduto};
  std::erase(outros, &campo);
  return outros;
}

void ItemEmEdicao::EsvaziarCompanheiros(const ZVFind& campo) {
  if (frame::TomarSupressaoDePesquisa()) return;
  for (ZVFind* outro : Companheiros(campo)) outro->Text = "";
}

void ItemEmEdicao::Esvaziar(ZVFind& campo) {
  campo.Status = ZVFind::kEmpty;
  campo.Text = "";
}

void ItemEmEdicao::Receber(const ItemEncontrado& item) {
  const frame::SupressaoDePesquisa supressao;
  Mostrar(item);
  if (item.tipo == kServico) Escolher(tela_.zvcmbTiposDeServicos, item.tipoDeServico);
}

void ItemEmEdicao::Mostrar(const ItemEncontrado& item) {
  const bool servico = item.tipo == kServico;
  (servico ? servico_ : produto_) = item;
  ZVFind& nome = servico ? tela_.zvfNomeDoServico : tela_.zvfNomeDoProduto;
  ZVFind& codigo = servico ? tela_.zvfCodigoDoServico : tela_.zvfCodigoInternoDoProduto;
  nome.Status = ZVFind::kFound;
  codigo.Status = ZVFind::kFound;
  codigo.Text = item.codigo;
  nome.Text = item.nome;
  nome.Tag = item.custo;
  if (servico) return;
  tela_.zvfCodigoDeBarrasDoProduto.Status = ZVFind::kFound;
  tela_.zvfCodigoDeBarrasDoProduto.Text = item.codigoDeBarras;
}

void ItemEmEdicao::Devolver(const base::GradeLida& grade, std::int32_t linha) {
  frame::SupressaoDePesquisa supressao;
  const auto celula = [&](std::int32_t coluna) { return grade.TextMatrix(linha, coluna); };
  ItemEncontrado item{.codigo = celula(kCodigo), .nome = celula(kNome), .custo = celula(kCusto)};
  if (TipoDeLancamentoDa(grade, linha) == kProduto) {
    item.tipo = kProduto;
    item.codigoDeBarras = celula(kTipoOuCodigoDeBarras);
    item.unidade = celula(kUnidade);
    item.percentualDeComissao = base::ToCurrency(celula(kPercentualDeComissao));
    Mostrar(item);
    return;
  }
  item.tipoDeServico = base::ToInt32(base::Val(celula(kTipoOuCodigoDeBarras)));
  Escolher(tela_.zvcmbTiposDeServicos, item.tipoDeServico);
  Mostrar(item);
  Escolher(tela_.zvcmbAnimal, base::ToInt32(base::Val(celula(kCodigoDoAnimal))));
}

void ItemEmEdicao::DevolverValores(const base::GradeLida& grade, std::int32_t linha) {
  const auto celula = [&](std::int32_t coluna) { return grade.TextMatrix(linha, coluna); };
  const auto positivo = [](const std::string& texto) {
    return FormatMoney(base::ToDouble(texto) * -1.0);
  };
  tela_.zvnumQuantidade.Text = celula(kQuantidade);
  tela_.zvnumValorUnitario.Text = celula(kValorUnitario);
  tela_.zvnumPercentualDeDescontoPorItem.Text = positivo(celula(kDescontoEmPercentual));
  tela_.zvnumValorDeDescontoPorItem.Text = positivo(celula(kDescontoEmValor));
  numeroDoLancamento_ = base::ToInt32(base::Val(celula(kNumeroDeLancamento)));
}

void ItemEmEdicao::CalcularValorDoDesconto() {
  const Currency valor = LerCurrency(tela_.zvnumQuantidade) * LerCurrency(tela_.zvnumValorUnitario);
  tela_.zvnumValorDeDescontoPorItem.Text =
      ValorDoPercentual(valor, LerDouble(tela_.zvnumPercentualDeDescontoPorItem));
}

void ItemEmEdicao::CalcularPercentualDoDesconto() {
  const Currency desconto = LerCurrency(tela_.zvnumValorDeDescontoPorItem);
  const double quantidade = LerDouble(tela_.zvnumQuantidade);
  const double unitario = LerDouble(tela_.zvnumValorUnitario);
  if (desconto.IsZero() || quantidade == 0 || unitario == 0) return;
  tela_.zvnumPercentualDeDescontoPorItem.Text =
      PercentualDoDesconto(desconto, quantidade, unitario);
}

void ItemEmEdicao::ZerarValores(std::string_view quantidade) {
  tela_.zvnumQuantidade.Text = std::string(quantidade);
  for (platform::ZVNumberBox* campo :
       {&tela_.zvnumValorUnitario, &tela_.zvnumPercentualDeDescontoPorItem,
        &tela_.zvnumValorDeDescontoPorItem}) {
    campo->Text = std::string(frame::kZeroEmDinheiro);
  }
}

NovaLinha ItemEmEdicao::MontarLinha() const {
  const bool servico = EhServico();
  const ItemEncontrado& item = servico ? servico_ : produto_;
  const double quantidade = LerDouble(tela_.zvnumQuantidade);
  const double desconto = LerDouble(tela_.zvnumValorDeDescontoPorItem);
  const Currency total = TotalDaLinha(quantidade, LerDouble(tela_.zvnumValorUnitario), desconto);
  const std::string& comissionado = tela_.zvcmbComissionado.Text();
  const std::string funcionario = comissionado.empty() ? "0" : Escolhido(tela_.zvcmbComissionado);
  const Currency percentual = base::IsBlank(comissionado)
                                  ? Currency()
                                  : Arredondar(base::ToCurrency(base::Right(
                                        comissionado, servicos::linha::kLarguraDaComissao)));
  const std::string tipoOuBarras =
      servico ? Escolhido(tela_.zvcmbTiposDeServicos) : tela_.zvfCodigoDeBarrasDoProduto.Text();
  const std::string codigo =
      servico ? tela_.zvfCodigoDoServico.Text() : tela_.zvfCodigoInternoDoProduto.Text();
  const std::string animal = servico ? Escolhido(tela_.zvcmbAnimal) : std::string();
  return {.chave = tipoOuBarras + codigo + animal + funcionario,
          .celulas =
              Juntar({tipoOuBarras,
                      codigo,
                      servico ? tela_.zvfNomeDoServico.Text() : tela_.zvfNomeDoProduto.Text(),
                      animal,
                      servico ? tela_.zvcmbAnimal.Text() : std::string(),
                      funcionario,
                      comissionado,
                      servico ? base::Format(quantidade, "0") : FormatMoney(quantidade),
                      FormatMoney(LerCurrency(tela_.zvnumValorUnitario)),
                      FormatMoney(LerDouble(tela_.zvnumPercentualDeDescontoPorItem) * -1.0),
                      FormatMoney(desconto * -1.0),
                      FormatMoney(total),
                      FormatMoney(item.custo.empty() ? Currency() : base::ToCurrency(item.custo)),
                      FormatMoney(percentual),
                      FormatMoney(ComissaoDaLinha(percentual, total)),
                      base::ToText(numeroDoLancamento_),
                      item.unidade,
                      "0",
                      base::ToText(static_cast<std::int32_t>(servicos::kVendaDeBalcao)),
                      base::ToText(static_cast<std::int32_t>(Tipo()))})};
}

void ItemEmEdicao::Encerrar() {
  const frame::SupressaoDePesquisa supressao;
  numeroDoLancamento_ = 0;
  if (EhServico()) {
    tela_.zvcmbTiposDeServicos.ListIndex = -1;
    tela_.zvfCodigoDoServico.Text = "";
    tela_.zvfNomeDoServico.Text = "";
  } else {
    tela_.zvfCodigoDeBarrasDoProduto.Text = "";
    tela_.zvfNomeDoProduto.Text = "";
    tela_.zvfCodigoInternoDoProduto.Text = "";
  }
  tela_.zvcmbComissionado.ListIndex = -1;
  ZerarValores(EhServico() ? "0" : "0,000");
}

}  // namespace sale
