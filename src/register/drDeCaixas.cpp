#include "register/drDeCaixas.h"

#include "base/Numbers.h"
#include "frame/Valores.h"

namespace registers {

using platform::ReportAlign;
using platform::ReportFont;

namespace {

constexpr std::int32_t kLargura = platform::kA4SidewaysPaper.InnerWidth();
constexpr bool kCresce = true;

constexpr ColunaDoRelatorio ColunaDeValor(std::string_view titulo, std::string_view controle,
                                          std::string_view campo, std::string_view soma) {
  constexpr std::int32_t kLarguraDoValor = 948;  // "-9.999.999,99" in 7 points.
  return {titulo, kLarguraDoValor, controle, campo, soma, true};
}

constexpr ColunaDoRelatorio kColunasDoResumo[] = {
    {"Data", 900, "txtData", "DataDoLancamento"},
    ColunaDeValor("Abertura", "txtAbertura", "Abertura", "rptfAbertura"),
    ColunaDeValor("Entradas", "txtEntrada", "Entrada", "rptfEntrada"),
    ColunaDeValor("Saídas", "txtSaida", "Saida", "rptfSaida"),
    ColunaDeValor("Dinheiro", "txtDinheiro", "Dinheiro", "rptfDinheiro"),
    ColunaDeValor("Troco", "txtTroco", "Troco", "rptfTroco"),
    ColunaDeValor("Estorno em dinheiro", "txtEstornoEmDinheiro", "EstornoEmDinheiro",
                  "rptfEstornoEmDinheiro"),
    ColunaDeValor("Fechamento", "txtFechamento", "Fechamento", "rptfFechamento"),
    ColunaDeValor("Em caixa", "txtEmCaixa", "EmCaixa", "rptfEmCaixa"),
    ColunaDeValor("Cheques", "txtVendasEmCheques", "Cheque", "rptfVendasEmCheques"),
    ColunaDeValor("Cartões de crédito", "txtVendasEmCartoesDeCredito", "CartaoDeCredito",
                  "rptfVendasEmCartoesDeCredito"),
    ColunaDeValor("Débito e PIX", "txtVendasEmCartoesDeDebitoEPIX", "CartaoDeDebitoEPIX",
                  "rptfVendasEmCartoesDeDebitoEPIX"),
    ColunaDeValor("Boletos", "txtVendasEmBoleto", "Boleto", "rptfVendasEmBoleto"),
    ColunaDeValor("Total de pagamentos", "txtTotalDePagamentos", "TotalDePagamentos",
                  "rptfTotalDePagamentos"),
    ColunaDeValor("Estorno em outros", "txtEstornoEmOutrosRecebimentos",
                  "EstornoEmOutrosRecebimentos", "rptfEstornoEmOutrosRecebimentos"),
    ColunaDeValor("A crédito", "txtVendasACredito", "ACredito", "rptfVendasACredito"),
};

constexpr ColunaDoRelatorio kColunasDosLancamentos[] = {
    {"Data", 1050, "txtData", "DataDoLancamento"},
    {"Hora", 900, "txtHora", "HoraDoLancamento"},
    {.titulo = "Lançamento",
     .largura = 1100,
     .controle = "txtNumeroDoLancamento",
     .campo = "NumeroDoLancamento",
     .numero = true},
    {.titulo = "Venda",
     .largura = 950,
     .controle = "txtNumeroDaVenda",
     .campo = "NumeroDaVenda",
     .numero = true},
    {"Operador", 1350, "txtOperador", "Operador"},
    {"Descrição", 2200, "txtDescricao", "Descricao"},
    {"Valor", 1300, "txtValor", "Valor", "rptfTotal", true},
    {"Moeda", 1700, "txtMoeda", "Moeda"},
    {"Observação", 4588, "txtObservacao", "Observacao"},
};

}  // namespace

const RelatorioDeCaixas kResumoDeCaixas{
    .nome = "drResumoDeCaixas",
    .titulo = "Resumo de caixas",
    .rodapeDaPagina = "RodapeDaPagina",
    .colunas = kColunasDoResumo,
    .legenda =
        "Em caixa = abertura + entradas + saídas + dinheiro + troco + estorno em dinheiro + "
        "fechamento. Total de pagamentos = dinheiro + troco + cheques + cartões + PIX + boletos + "
        "estornos. Estorno é o que os cancelamentos e as devoluções de crédito devolveram, menos o "
        "que voltou ao caixa; o troco de uma venda cancelada volta como estorno em dinheiro. A "
        "crédito: vendas a crédito (fiado) do dia que não foram canceladas, recebidas ou não; não "
        "é dinheiro e não entra nas somas."};

const RelatorioDeCaixas kLancamentosDeCaixas{
    .nome = "drLancamentosDeCaixas",
    .titulo = "Lançamentos de caixas",
    .rodapeDaPagina = "RodapeDapagina",
    .letra = 8,
    .entreColunas = 150,
    .colunas = kColunasDosLancamentos,
    .legenda =
        "Só os lançamentos que movem dinheiro ou outro recebimento. O que uma venda deixou a "
        "crédito (fiado), ou tirou do crédito do cliente, está na observação dos lançamentos dela; "
        "uma venda paga só assim não tem lançamento aqui."};

drDeCaixas::drDeCaixas(const RelatorioDeCaixas& relatorio)
    : DataReport(relatorio.nome),
      RodapeDaPagina(*this, relatorio.rodapeDaPagina, platform::Band::kPageFooter),
      relatorio_(relatorio) {
  Title = "Imprimir procedimentos";
  for (const ColunaDoRelatorio& coluna : relatorio.colunas) {
    titulos_.emplace_back(CabecalhoDaPagina, "lblTitulo" + std::string(coluna.campo));
    platform::ReportText& texto = textos_.emplace_back(Detalhes, coluna.controle);
    columns.push_back({std::string(coluna.titulo), std::string(coluna.campo)});
    if (coluna.valor) texto.DataFormat = std::string(base::kMoneyMask);
    if (coluna.soma.empty()) continue;
    somas_.emplace_back(RodapeDoGrupo, coluna.soma);
    totais_.emplace_back(RodapeDoRelatorio, std::string(coluna.soma) + "Geral");
  }
  columns.insert(columns.begin(), {"Caixa", "NumeroENomeDoCaixa"});
  Desenhar();
}

void drDeCaixas::Desenhar() {
  const ReportFont texto{.points = relatorio_.letra};
  const ReportFont forte{.points = relatorio_.letra, .bold = true};
  constexpr ReportFont kTitulo{.points = 15, .bold = true};
  constexpr ReportFont kDestaque{.points = 11, .bold = true};
  constexpr ReportFont kNormal{.points = 9};
  constexpr ReportFont kMiudo{.points = 8};
  constexpr auto kAEsquerda = ReportAlign::kLeft;
  constexpr auto kADireita = ReportAlign::kRight;
  platform::ReportLayout desenho{
      .paper = platform::kA4SidewaysPaper,
      .bands = {{CabecalhoDaPagina, 1290},
                {CabecalhoDoGrupo, 390},
                {Detalhes, 240},
                {RodapeDoGrupo, 390},
                {RodapeDoRelatorio, 960},
                {RodapeDaPagina, 390}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 9000, 345}, "", kTitulo},
          {lblTitulo, {9000, 45, kLargura - 9000, 300}, relatorio_.titulo, kDestaque, kADireita},
          {lblPeriodo, {0, 420, 9000, 240}, "", kNormal},
          {lblEmissao,
           {9000, 420, kLargura - 9000, 240},
           "Emitido em %d às %t",
           kNormal,
           kADireita},
          {linColunas, {0, 735, kLargura, 0}},
          {linDetalhes, {0, 1245, kLargura, 0}},
          {txtCaixa, {0, 90, kLargura, 270}, "NumeroENomeDoCaixa", kDestaque},
          {linSomas, {0, 30, kLargura, 0}},
          {lblSomas, {0, 75, 900, 210}, "Soma", forte},
          {linTotais, {0, 30, kLargura, 0}},
          {lblTotais, {0, 75, 900, 210}, "Total geral", forte},
          {lblLegenda, {0, 375, kLargura, 420}, relatorio_.legenda, kMiudo, kAEsquerda, kCresce},
          {linRodape, {0, 90, kLargura, 0}},
          {lblTituloDoAplicativo, {0, 150, 9000, 240}, "", kMiudo},
          {lblPagina, {9000, 150, kLargura - 9000, 240}, "Página %p de %P", kMiudo, kADireita},
      }};
  std::int32_t esquerda = 0;
  std::size_t i = 0, somada = 0;
  for (const ColunaDoRelatorio& coluna : relatorio_.colunas) {
    const std::int32_t largura = coluna.largura - relatorio_.entreColunas;
    const auto lado = coluna.valor || coluna.numero ? kADireita : kAEsquerda;
    desenho.places.push_back(
        {titulos_[i], {esquerda, 795, largura, 420}, coluna.titulo, forte, lado, kCresce});
    desenho.places.push_back(
        {textos_[i], {esquerda, 15, largura, 210}, coluna.campo, texto, lado, kCresce});
    if (!coluna.soma.empty()) {
      desenho.places.push_back(
          {somas_[somada], {esquerda, 75, largura, 210}, coluna.campo, forte, kADireita});
      desenho.places.push_back(
          {totais_[somada], {esquerda, 75, largura, 210}, coluna.campo, forte, kADireita});
      ++somada;
    }
    esquerda += coluna.largura;
    ++i;
  }
  Arrange(desenho);
}

void drDeCaixas::Preencher(const base::RecordSetPtr& linhas, const std::string& empresa,
                           const std::string& periodo) {
  DataSource = linhas;
  lblNomeFantasiaDaEmpresa.Caption = empresa;
  lblPeriodo.Caption = periodo;
  lblTituloDoAplicativo.Caption = frame::valores().NomeDaAplicacao;
  // The sum of one register is told already.
  std::string primeiro;
  bool varios = false;
  base::ForEachRow(*linhas, [&] {
    const std::string caixa = base::ToText(linhas->Fields("NumeroENomeDoCaixa"));
    if (primeiro.empty()) primeiro = caixa;
    varios = varios || caixa != primeiro;
  });
  linTotais.Visible = varios;
  lblTotais.Visible = varios;
  for (platform::ReportSum& total : totais_) total.Visible = varios;
}

}  // namespace registers
