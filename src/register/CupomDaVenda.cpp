#include "register/CupomDaVenda.h"

#include "base/DateTime.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "platform/Desktop.h"

namespace registers {
namespace {

/// From its issue on the tax authority takes the cancellation of a coupon.
constexpr std::int64_t kMinutosParaCancelar = 30;
constexpr std::int64_t kMinutosDeAviso = 3;

/// Not a password: it opens the manager of the fiscal application for whoever stands before it.
constexpr std::string_view kAbrirGerenciador = "|ADMIN|";

bool DesejaCancelarOCupom() {
  return frame::Perguntar(
      "Foi emitido e um documento fiscal (CF-e / SAT) para esta venda.\n\nClique em 'Sim', para "
      "cancelar esta venda no sistema " +
      frame::valores().NomeDaAplicacao +
      ", será aberto a tela do aplicativo externo para efetuar o cancelamento junto a "
      "SEFAZ.\n\nClique em 'Não', para não cancelar esta venda e nem o documento fiscal CF-e / "
      "SAT.\n\nDeseja proceder com cancelamento?");
}

bool DesejaGravarDeNovo() {
  return frame::Perguntar(
      "Houve um erro na gravação do arquivo para abrir o gerenciador de CF-e SAT.\n\nClique em "
      "'Sim' para gravar o arquivo novamente.\n\nClique em 'Não' para cancelar a venda apenas no "
      "sistema " +
      frame::valores().NomeDaAplicacao +
      " será cancelada.\n\nAo clicar em 'Não' o documento fiscal não será cancelado.\n\nDeseja "
      "tentar gravar o arquivo novamente?");
}

}  // namespace

bool GravaInstrucaoParaGerenciadorCFeSAT(std::string_view texto) {
  using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;
  if (!frame::EmiteDocumentoFiscal()) return true;
  return servicos::CriarServico<clsOSExportarRegistros>()->ExportarDadosParaCancelarCFeSAT(texto) !=
         servicos::kErro;
}

bool PrepararCancelamentoDoCupom(const std::string& data, const std::string& hora) {
  if (!DesejaCancelarOCupom()) return false;
  const base::DateTime venda = base::ToDate(data + " " + hora);
  const base::DateTime agora = platform::Desktop::Current().Now();
  if (venda.Date() != agora.Date()) {
    frame::Parar("É possível apenas fazer o cancelamento das 'vendas do dia'.");
    return false;
  }
  const std::int64_t minutos = (agora.Seconds() - venda.Seconds()) / 60;
  if (minutos >= kMinutosParaCancelar) {
    frame::Parar(
        "Não é possível proceder com o cancelamento do documento fiscal CF-e SAT na SEFAZ após 30 "
        "minutos da sua emissão.");
    return true;
  }
  const std::int64_t restam = kMinutosParaCancelar - minutos;
  if (restam <= kMinutosDeAviso) {
    frame::Informar(
        "Atenção !!! \n\nDo tempo limite de 30 minutos estabecido pela SEFAZ, restam apenas " +
        std::to_string(restam) + " minutos para este CF-e SAT ainda possa ser cancelado na SEFAZ.");
  }
  while (!GravaInstrucaoParaGerenciadorCFeSAT(kAbrirGerenciador)) {
    if (DesejaGravarDeNovo()) continue;
    frame::Parar(
        "Como o arquivo não foi gravado, o documento fiscal desta venda não foi cancelado junto a "
        "SEFAZ.");
    break;
  }
  return true;
}

}  // namespace registers
