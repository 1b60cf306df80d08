#include "checkout/drComprovante.h"

#include "base/Numbers.h"
#include "frame/Valores.h"

namespace checkout {

using platform::Paper;
using platform::ReportAlign;
using platform::ReportFont;
using platform::ReportLayout;

namespace {

constexpr auto kAEsquerda = ReportAlign::kLeft;
constexpr auto kADireita = ReportAlign::kRight;
constexpr auto kAoCentro = ReportAlign::kCenter;
constexpr bool kCresce = true;
constexpr std::string_view kSemValorFiscal = "Este comprovante não tem valor fiscal.";
constexpr std::string_view kAgradecimento = "Obrigado pela preferência!";
constexpr std::string_view kCreditoParaOCliente = "Crédito para o cliente";

constexpr ReportFont kFonteNaFolha{.points = 9};
constexpr ReportFont kFonteNaBobina{.points = 8};

bool EhBobina(const Paper& papel) {
  return papel.kind == Paper::Kind::kRoll80;
}

}  // namespace

drComprovante::drComprovante(std::string_view nome, std::string_view impressao) : DataReport(nome) {
  Title = std::string(impressao);
  for (platform::ReportText* valor : {&txtValorUnitario, &txtDesconto, &txtValorTotal}) {
    valor->DataFormat = std::string(base::kMoneyMask);
  }
}

void drComprovante::Preencher(const Comprovante& comprovante) {
  lblNomeFantasiaDaEmpresa.Caption = comprovante.empresa;
  lblNumeroDaVenda.Caption = comprovante.venda;
  lblCodigoENomeOuRazaoSocialDoCliente.Caption = comprovante.cliente;
  lblEnderecoDoCliente.Caption = comprovante.endereco;
  lblCanalDeComunicacaoDoCliente.Caption = comprovante.canais;
  txtTotalDosServicosEProdutos.Caption = comprovante.total;
  lblValorPago.Caption = comprovante.rotuloDoPago;
  txtValorPago.Caption = comprovante.pago;
  lblTituloDoAplicativo.Caption = frame::valores().NomeDaAplicacao;
}

drComprovanteDePagamentoDeVenda::drComprovanteDePagamentoDeVenda(const Paper& papel)
    : drComprovante("drComprovanteDePagamentoDeVenda",
                    "Imprimir comprovante de pagamento de venda") {
  constexpr Palavras kPalavras{"Comprovante de pagamento", "COMPROVANTE DE PAGAMENTO",
                               "Emitido em %d às %t", "%d %t"};
  const bool bobina = EhBobina(papel);
  ReportLayout desenho = bobina ? EmBobina(kPalavras) : EmFolha(kPalavras);
  // Empty ones have no height, so that they leave no gap.
  const auto par = [&](platform::ReportControl& rotulo, platform::ReportControl& valor,
                       std::int32_t alto, std::string_view palavras) {
    const platform::Place::Box doRotulo =
        bobina ? platform::Place::Box{0, alto, 2900, 0} : platform::Place::Box{2430, alto, 5570, 0};
    const platform::Place::Box doValor = bobina ? platform::Place::Box{2900, alto, 1181, 0}
                                                : platform::Place::Box{8160, alto, 2046, 0};
    const ReportFont fonte = bobina ? kFonteNaBobina : kFonteNaFolha;
    desenho.places.push_back(
        {rotulo, doRotulo, palavras, fonte, bobina ? kAEsquerda : kADireita, kCresce});
    desenho.places.push_back({valor, doValor, "", fonte, kADireita, kCresce});
  };
  par(lblTroco, txtTroco, bobina ? 975 : 1080, "");
  par(lblCredito, txtCredito, bobina ? 1020 : 1140, kCreditoParaOCliente);
  Arrange(desenho);
}

dr2aViaDoComprovanteDePagamentoDeVenda::dr2aViaDoComprovanteDePagamentoDeVenda(const Paper& papel)
    : drComprovante("dr2aViaDoComprovanteDePagamentoDeVenda",
                    "Imprimir 2a. via do comprovante de pagamento de venda") {
  constexpr Palavras kPalavras{"Comprovante de pagamento - 2ª via",
                               "COMPROVANTE DE PAGAMENTO - 2ª VIA", "2ª via impressa em %d às %t",
                               "%d %t"};
  Arrange(EhBobina(papel) ? EmBobina(kPalavras) : EmFolha(kPalavras));
}

// A sheet: a table whose columns stand under their headings on every page. What may be empty has no
// height of its own, so that it leaves no gap.
ReportLayout drComprovante::EmFolha(const Palavras& palavras) {
  constexpr ReportFont kTitulo{.points = 15, .bold = true};
  constexpr ReportFont kTotal{.points = 13, .bold = true};
  constexpr ReportFont kDestaque{.points = 11, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kTexto{.points = 9};
  constexpr ReportFont kMiudo{.points = 8};
  return {
      .paper = platform::kA4Paper,
      .bands = {{CabecalhoDaPagina, 1710},
                {Detalhes, 270},
                {RodapeDoRelatorio, 1560},
                {RodapeDaPagina, 420}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 6600, 345}, "", kTitulo, kAEsquerda, kCresce},
          {lblTituloDoComprovante, {6700, 60, 3506, 285}, palavras.titulo, kDestaque, kADireita},
          {lblRotuloDaVenda, {0, 420, 960, 285}, "Venda nº", kDestaque},
          {lblNumeroDaVenda, {1020, 420, 4000, 285}, "", kDestaque},
          {lblEmissao, {6600, 450, 3606, 240}, palavras.emissao, kTexto, kADireita},
          {linCliente, {0, 780, 10206, 0}},
          {lblRotuloDoCliente, {0, 870, 1000, 210}, "Cliente", kForte},
          {lblCodigoENomeOuRazaoSocialDoCliente,
           {1020, 870, 9186, 210},
           "",
           kTexto,
           kAEsquerda,
           kCresce},
          {lblEnderecoDoCliente, {1020, 1125, 9186, 0}, "", kTexto, kAEsquerda, kCresce},
          {lblCanalDeComunicacaoDoCliente, {1020, 1170, 9186, 0}, "", kTexto, kAEsquerda, kCresce},
          {linColunas, {0, 1260, 10206, 0}},
          {lblData, {0, 1335, 950, 270}, "Data", kForte},
          {lblAnimal, {1020, 1335, 1200, 270}, "Animal", kForte},
          {lblServicoOuProduto, {2300, 1335, 2820, 270}, "Serviço ou produto", kForte},
          {lblQuantidade, {5140, 1335, 820, 270}, "Qtde.", kForte, kADireita},
          {lblUnidade, {6070, 1335, 560, 270}, "Un.", kForte},
          {lblValorUnitario, {6640, 1335, 1180, 270}, "Valor unit.", kForte, kADireita},
          {lblDesconto, {7820, 1335, 1180, 270}, "Desconto", kForte, kADireita},
          {lblValorTotal, {9000, 1335, 1206, 270}, "Valor total", kForte, kADireita},
          {linDetalhes, {0, 1635, 10206, 0}},

          {txtDataDoServicoEfetuadoOuProdutoReservado,
           {0, 15, 950, 240},
           "DataDoServicoEfetuadoOuProdutoReservado",
           kTexto},
          {txtNomeDoAnimal, {1020, 15, 1200, 210}, "NomeDoAnimal", kTexto, kAEsquerda, kCresce},
          {txtNomeDoServicoOuProduto,
           {2300, 15, 2820, 210},
           "NomeDoServicoOuProduto",
           kTexto,
           kAEsquerda,
           kCresce},
          {txtQuantidade, {5140, 15, 820, 240}, "Quantidade", kTexto, kADireita},
          {txtUnidadeDeVenda, {6070, 15, 560, 210}, "UnidadeDeVenda", kTexto, kAEsquerda, kCresce},
          {txtValorUnitario, {6640, 15, 1180, 240}, "ValorUnitario", kTexto, kADireita},
          {txtDesconto, {7820, 15, 1180, 240}, "ValorDeDesconto", kTexto, kADireita},
          {txtValorTotal, {9000, 15, 1206, 240}, "ValorTotal", kTexto, kADireita},

          {linTotais, {0, 45, 10206, 0}},
          {lblTotalDosServicosEProdutos,
           {2430, 150, 5570, 330},
           "Total dos serviços e produtos:",
           kTotal,
           kADireita},
          {txtTotalDosServicosEProdutos, {8160, 150, 2046, 330}, "", kTotal, kADireita},
          {lblValorPago, {1000, 540, 7000, 210}, "", kTexto, kADireita, kCresce},
          {txtValorPago, {8160, 540, 2046, 210}, "", kTexto, kADireita},
          {lblSaldoDevedor, {2430, 810, 5570, 210}, "Saldo devedor:", kForte, kADireita},
          {txtSaldoDevedor, {8160, 810, 2046, 210}, "", kForte, kADireita},
          {lblSemValorFiscal, {0, 1320, 6000, 240}, kSemValorFiscal, kMiudo},
          {lblAgradecimento, {6000, 1320, 4206, 240}, kAgradecimento, kMiudo, kADireita},

          {linRodape, {0, 90, 10206, 0}},
          {lblTituloDoAplicativo, {0, 150, 7000, 240}, "", kMiudo},
          {lblPagina, {7000, 150, 3206, 240}, "Página %p de %P", kMiudo, kADireita},
      }};
}

// The roll is too narrow for a table: an item is its name, and below it the sum that makes its
// price.
ReportLayout drComprovante::EmBobina(const Palavras& palavras) {
  constexpr ReportFont kTitulo{.points = 11, .bold = true};
  constexpr ReportFont kTotal{.points = 13, .bold = true};
  constexpr ReportFont kForte{.points = 9, .bold = true};
  constexpr ReportFont kPreco{.points = 8, .bold = true};
  constexpr ReportFont kTexto{.points = 8};
  // What speaks for itself has no heading, and there is but one page.
  for (platform::ReportLabel* rotulo : {&lblAnimal, &lblUnidade, &lblPagina}) {
    rotulo->Visible = false;
  }
  return {
      .paper = platform::kRoll80Paper,
      .bands = {{CabecalhoDaPagina, 1770},
                {Detalhes, 720},
                {RodapeDoRelatorio, 1650},
                {RodapeDaPagina, 390}},
      .places = {
          {lblNomeFantasiaDaEmpresa, {0, 0, 4081, 0}, "", kTitulo, kAoCentro, kCresce},
          {lblTituloDoComprovante, {0, 45, 4081, 210}, palavras.tituloNaBobina, kTexto, kAoCentro},
          {lblRotuloDaVenda, {0, 345, 840, 210}, "Venda nº", kForte},
          {lblNumeroDaVenda, {840, 345, 1100, 210}, "", kForte},
          {lblEmissao, {1950, 360, 2131, 195}, palavras.emissaoNaBobina, kTexto, kADireita},
          {linCliente, {0, 630, 4081, 0}},
          {lblRotuloDoCliente, {0, 690, 4081, 195}, "Cliente", kTexto},
          {lblCodigoENomeOuRazaoSocialDoCliente,
           {0, 900, 4081, 210},
           "",
           kForte,
           kAEsquerda,
           kCresce},
          {lblEnderecoDoCliente, {0, 1125, 4081, 0}, "", kTexto, kAEsquerda, kCresce},
          {lblCanalDeComunicacaoDoCliente, {0, 1155, 4081, 0}, "", kTexto, kAEsquerda, kCresce},
          {linColunas, {0, 1230, 4081, 0}},
          {lblData, {0, 1275, 1000, 210}, "Data", kTexto},
          {lblServicoOuProduto, {1000, 1275, 3081, 210}, "Serviço ou produto", kTexto},
          {lblQuantidade, {0, 1485, 640, 210}, "Qtde.", kTexto, kADireita},
          {lblValorUnitario, {1060, 1485, 1000, 210}, "Unitário", kTexto, kADireita},
          {lblDesconto, {2060, 1485, 1000, 210}, "Desconto", kTexto, kADireita},
          {lblValorTotal, {3060, 1485, 1021, 210}, "Total", kTexto, kADireita},
          {linDetalhes, {0, 1740, 4081, 0}},

          {txtNomeDoServicoOuProduto,
           {0, 15, 4081, 210},
           "NomeDoServicoOuProduto",
           kForte,
           kAEsquerda,
           kCresce},
          {txtDataDoServicoEfetuadoOuProdutoReservado,
           {0, 240, 1000, 210},
           "DataDoServicoEfetuadoOuProdutoReservado",
           kTexto},
          {txtNomeDoAnimal, {1000, 240, 3081, 210}, "NomeDoAnimal", kTexto, kAEsquerda, kCresce},
          {txtQuantidade, {0, 465, 640, 210}, "Quantidade", kTexto, kADireita},
          {txtUnidadeDeVenda, {700, 465, 360, 210}, "UnidadeDeVenda", kTexto, kAEsquerda, kCresce},
          {txtValorUnitario, {1060, 465, 1000, 210}, "ValorUnitario", kTexto, kADireita},
          {txtDesconto, {2060, 465, 1000, 210}, "ValorDeDesconto", kTexto, kADireita},
          {txtValorTotal, {3060, 465, 1021, 210}, "ValorTotal", kPreco, kADireita},

          {linTotais, {0, 45, 4081, 0}},
          {lblTotalDosServicosEProdutos, {0, 120, 2000, 300}, "Total:", kTotal},
          {txtTotalDosServicosEProdutos, {2000, 120, 2081, 300}, "", kTotal, kADireita},
          {lblValorPago, {0, 480, 2900, 195}, "", kTexto, kAEsquerda, kCresce},
          {txtValorPago, {2900, 480, 1181, 195}, "", kTexto, kADireita},
          {lblSaldoDevedor, {0, 720, 2900, 210}, "Saldo devedor:", kForte},
          {txtSaldoDevedor, {2900, 720, 1181, 210}, "", kForte, kADireita},
          {lblSemValorFiscal, {0, 1200, 4081, 210}, kSemValorFiscal, kTexto, kAoCentro},
          {lblAgradecimento, {0, 1425, 4081, 210}, kAgradecimento, kTexto, kAoCentro},

          {linRodape, {0, 60, 4081, 0}},
          {lblTituloDoAplicativo, {0, 120, 4081, 210}, "", kTexto, kAoCentro},
      }};
}

}  // namespace checkout
