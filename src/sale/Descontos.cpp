#include <string>

#include "consent/Autorizar.h"
#include "frame/CamposNumericos.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Valores.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

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

bool Autorizado() {
  const frame::FundoEscuro fundo;
  return consent::Autorizar(consent::kAutorizarDesconto);
}

}  // namespace

std::int16_t frmCaixaOperar::AtualizarIndicativosDeImpressaoDeDocumentos() {
  std::int16_t resultado = 1;
  Procedimento(*this, "AtualizarIndicativosDeImpressaoDeDocumentos", [&](Ponto& ponto) {
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
        valores().*campo.indicativo = base::ToText(leitura.empresa->Fields(campo.nome)) == "Sim";
      }
    }
    resultado = 0;
  });
  return resultado;
}

void frmCaixaOperar::AtualizarPercDeDescontoLimiteDaVendaNoCaixa() {
  Procedimento(frame::etiquetas::kAtualizarPercDeDescontoLimite, [&](Ponto& ponto) {
    const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
    if (!leitura.Cadastrada()) return;
    ponto = 2;
    regras_.AtualizarLimite(*leitura.empresa);
  });
}

void frmCaixaOperar::RecuperaDescontoDoCliente() {
  Procedimento(*this, "RecuperaDescontoDoCliente", [&](Ponto& ponto) {
    platform::ZVNumberBox& campo = zvnumPercentualDeDescontoPorItem;
    const auto percentual = caixaDoCliente_.Cliente().descontos.Para(item_.TipoDeServico());
    if (percentual) campo.Text = base::ToText(*percentual);
    ponto = 2;
    if (VerificaDescontoPromocionalDeVenda() == 1) {
      campo.Text = std::string(frame::kZeroEmDinheiro);
    }
    ponto = 3;
    zvnumPercentualDeDescontoPorItem_LostFocus();
  });
}

std::int16_t frmCaixaOperar::VerificaDescontoPromocionalDeVenda() {
  std::int16_t resultado = 0;
  Procedimento(*this, "VerificaDescontoPromocionalDeVenda", [&](Ponto& ponto) {
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
    const auto promocao =
        RegrasDeDesconto::PromocaoPara(*leitura.empresa, optProduto.Value() ? kProduto : kServico);
    if (!promocao) return;
    ponto = 4;
    platform::ZVNumberBox& campo = zvnumPercentualDeDescontoPorItem;
    if (promocao->encerrada) {
      // The customer's own percentage goes as well.
      campo.Text = std::string(frame::kZeroEmDinheiro);
    } else if (frame::LerCurrency(campo) < promocao->percentual) {
      campo.Text = base::ToText(promocao->percentual);
    }
  });
  return resultado;
}

std::int16_t frmCaixaOperar::VerificaDescMaximoAutomaticoDeVenda() {
  std::int16_t resultado = 1;
  Procedimento(*this, "VerificaDescMaximoAutomaticoDeVenda", [&](Ponto& ponto) {
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
    const auto maximo = RegrasDeDesconto::MaximoAutomatico(*leitura.empresa, item_.Tipo());
    if (!maximo) return;
    if (frame::LerCurrency(zvnumPercentualDeDescontoPorItem) <= base::ToCurrency(*maximo)) return;
    ponto = 4;
    if (frame::Direito("Administrador") || Autorizado()) return;
    ponto = 5;
    resultado = 1;
    frame::Informar("Informe um desconto válido com o limite de até " + base::ToText(*maximo) +
                    "%");
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
  Procedimento(frame::etiquetas::kVerificaPercDeDescontoLimite, [&](Ponto&) {
    resultado = frame::Direito("Administrador") || Autorizado() ? 0 : 1;
  });
  return resultado;
}

std::int16_t frmCaixaOperar::AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada() {
  std::int16_t resultado = 1;
  Procedimento(*this, "AplicarDescontoERecalcularValoresDosItensDaNovaGradeDuplicada", [&](Ponto&) {
    totais_.DistribuirDesconto();
    resultado = 0;
  });
  return resultado;
}

}  // namespace sale
