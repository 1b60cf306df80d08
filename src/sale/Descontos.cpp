#include <string>

#include "base/Text.h"
#include "consent/Autorizar.h"
#include "frame/CamposNumericos.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Valores.h"
#include "platform/Desktop.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using frame::Ponto;
using frame::Procedimento;
using frame::valores;

namespace {

constexpr std::string_view kSemEmpresaParaPromocao =
    "Não foi possível encontrar dados promocionais da venda de serviço e/ou produtos porque não há "
    "empresa cadastrada.\nSelecione a guia (aba) 'Cadastros' e em seguida, clique na opções "
    "'Empresa'. Efetue o cadastro e solicite a inclusão da pré-venda novamente";
constexpr std::string_view kSemEmpresaParaMaximo =
    "Não foi possível encontrar dados promocionais da venda de serviço de atendimento clínico "
    "porque não há empresa cadastrada.\nSelecione a guia (aba) 'Cadastros' e em seguida, clique na "
    "opções 'Empresa'. Efetue o cadastro e solicite a inclusão do procedimento novamente";

enum class Periodo { kSemInicio, kInvalido, kDentro, kFora };

bool EhDataValida(const base::Value& valor) {
  return valor.Is<base::DateTime>() || base::IsDate(base::ToText(valor));
}

/// Where today lies; both days of the period belong to it.
Periodo PeriodoDe(const base::RecordSet& empresa, std::string_view inicio, std::string_view fim) {
  const base::Value& de = empresa.Fields(inicio);
  const base::Value& ate = empresa.Fields(fim);
  if (base::IsBlank(base::ToText(de))) return Periodo::kSemInicio;
  if (!EhDataValida(de) || !EhDataValida(ate)) return Periodo::kInvalido;
  const base::DateTime hoje = platform::Desktop::Current().Now().Date();
  const bool dentro = hoje >= base::ToDate(de).Date() && hoje <= base::ToDate(ate).Date();
  return dentro ? Periodo::kDentro : Periodo::kFora;
}

bool Autorizado() {
  const frame::FundoEscuro fundo;
  return consent::Autorizar(consent::kAutorizarDesconto);
}

}  // namespace

std::int16_t frmCaixaOperar::AtualizarIndicativosDeImpressaoDeDocumentos() {
  std::int16_t resultado = 1;
  Procedimento(
      ", frmCaixaOperar, AtualizarIndicativosDeImpressaoDeDocumentos, Ponto: ", [&](Ponto& ponto) {
        const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
        if (leitura.falhou) return;
        ponto = 2;
        if (leitura.Cadastrada()) {
          using Indicativo = bool frame::IndicativosDeImpressao::*;
          using I = frame::IndicativosDeImpressao;
          struct Campo {
            std::string_view nome;
            Indicativo indicativo;
          };
          static constexpr Campo kCampos[] = {
              {"ImprimirComprovanteDePagamento", &I::ImprimirComprovanteDePagamento},
              {"SolicitarConfirmacaoParaImprimirComprovanteDePagamento",
               &I::SolicitarConfirmacaoParaImprimirComprovanteDePagamento},
              {"VisualizarImpressaoDoComprovanteDePagamento",
               &I::VisualizarImpressaoDoComprovanteDePagamento},
              {"ImprimirNotaPromissoria", &I::ImprimirNotaPromissoria},
              {"SolicitarConfirmacaoParaImprimirNotaPromissoria",
               &I::SolicitarConfirmacaoParaImprimirNotaPromissoria},
              {"VisualizarImpressaoDaNotaPromissoria", &I::VisualizarImpressaoDaNotaPromissoria},
              {"ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT",
               &I::ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT},
              {"ImprimirComprovanteDeCFeSAT", &I::ImprimirComprovanteDeCFeSAT},
              {"SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT",
               &I::SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT}};
          for (const Campo& campo : kCampos) {
            valores().*campo.indicativo =
                base::ToText(leitura.empresa->Fields(campo.nome)) == "Sim";
          }
        }
        resultado = 0;
      });
  return resultado;
}

void frmCaixaOperar::AtualizarPercDeDescontoLimiteDaVendaNoCaixa() {
  Procedimento(
      ", frmCaixaPagar, AtualizarPercDeDescontoLimiteDaVendaNoCaixa, Ponto: ", [&](Ponto& ponto) {
        const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
        if (!leitura.Cadastrada()) return;
        ponto = 2;
        const base::Value& limite = leitura.empresa->Fields("PercDeDescontoLimiteDaVendaNoCaixa");
        if (!base::IsNull(limite)) PercentualDeDescontoLimite = base::ToCurrency(limite);
      });
}

std::int16_t frmCaixaOperar::VerificaDescontoPromocionalDeVenda() {
  std::int16_t resultado = 0;
  Procedimento(", frmCaixaOperar, VerificaDescontoPromocionalDeVenda, Ponto: ", [&](Ponto& ponto) {
    const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
    resultado = leitura.falhou ? 1 : 0;
    if (!leitura.empresa) return;
    ponto = 2;
    if (!leitura.Cadastrada()) {
      frame::Informar(kSemEmpresaParaPromocao);
      resultado = 1;
      return;
    }
    ponto = 3;
    switch (PeriodoDe(*leitura.empresa, "DataInicialDaPromocao", "DataFinalDaPromocao")) {
      case Periodo::kSemInicio:
      case Periodo::kInvalido:
        return;
      case Periodo::kFora:
        // A promotion that has ended takes the customer's own percentage away as well.
        zvnumPercentualDeDescontoPorItem.Text = std::string(frame::kZeroEmDinheiro);
        return;
      case Periodo::kDentro:
        break;
    }
    ponto = 4;
    const Currency promocao = base::ToCurrency(
        leitura.empresa->Fields(optProduto.Value() ? "PercPromocaoDeDescontoNaVendaDeProduto"
                                                   : "PercPromocaoDeDescontoNaVendaDeServico"));
    if (frame::LerCurrency(zvnumPercentualDeDescontoPorItem) < promocao) {
      zvnumPercentualDeDescontoPorItem.Text = base::ToText(promocao);
    }
  });
  return resultado;
}

std::int16_t frmCaixaOperar::VerificaDescMaximoAutomaticoDeVenda() {
  std::int16_t resultado = 1;
  Procedimento(", frmCaixaOperar, VerificaDescMaximoAutomaticoDeVenda, Ponto: ", [&](Ponto& ponto) {
    const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
    resultado = leitura.falhou ? 1 : 0;
    if (!leitura.empresa) return;
    ponto = 2;
    if (!leitura.Cadastrada()) {
      frame::Informar(kSemEmpresaParaMaximo);
      resultado = 1;
      return;
    }
    ponto = 3;
    if (PeriodoDe(*leitura.empresa, "DataInicialDoDesctoMaxAutomatico",
                  "DataFinalDoDesctoMaxAutomatico") != Periodo::kDentro) {
      return;
    }
    const base::Value maximo = leitura.empresa->Fields(
        EhServico() ? "PercDeDescMaxAutNaVendaDeServico" : "PercDeDescMaxAutNaVendaDeProduto");
    if (frame::LerCurrency(zvnumPercentualDeDescontoPorItem) <= base::ToCurrency(maximo)) return;
    ponto = 4;
    if (frame::Direito("Administrador") || Autorizado()) return;
    ponto = 5;
    resultado = 1;
    frame::Informar("Informe um desconto válido com o limite de até " + base::ToText(maximo) + "%");
    if (zvnumPercentualDeDescontoPorItem.Enabled()) {
      zvnumPercentualDeDescontoPorItem.SetFocus();
    } else {
      zvnumQuantidade.SetFocus();
    }
  });
  return resultado;
}

std::int16_t frmCaixaOperar::VerificaPercDeDescontoLimiteDaVendaNoCaixa() {
  std::int16_t resultado = 1;
  Procedimento(
      ", frmFichaDeProcedimentos, VerificaPercDeDescontoLimiteDaVendaNoCaixa, Ponto: ",
      [&](Ponto&) { resultado = frame::Direito("Administrador") || Autorizado() ? 0 : 1; });
  return resultado;
}

std::int16_t frmCaixaOperar::AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada() {
  std::int16_t resultado = 1;
  Procedimento(
      ", frmCaixaOperar, AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada, Ponto: ",
      [&](Ponto& ponto) {
        const Currency liquido = frame::LerCurrency(zvnumLiquidoAPagar);
        ComissaoComDesconto = DistribuirDesconto(msfgGrade, frame::LerCurrency(zvnumTotal), liquido,
                                                 msfgGradeComDescontoAplicado);
        ponto = 2;
        const Lucro lucro = CalcularLucro(liquido, Custo, ComissaoComDesconto);
        LucroEmValorComDesconto = lucro.valor;
        LucroEmPercentualComDesconto = lucro.percentual;
        resultado = 0;
      });
  return resultado;
}

}  // namespace sale
