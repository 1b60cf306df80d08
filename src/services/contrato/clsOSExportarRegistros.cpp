#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <utility>

#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/Banco.h"
#include "services/banco/Outcome.h"
#include "services/banco/Session.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/troca/PastaDeTroca.h"
#include "services/venda/EmissaoDeCupons.h"

namespace services {
namespace {

PastaDeTroca PastaDe(const Banco& banco, const std::string& pasta) {
  return {pasta, banco.Computador(), banco.Marca()};
}

class clsOSExportarRegistros : public servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros {
 public:
  clsOSExportarRegistros(const EmissaoDeCupons& emissao, RelatarFalha relatar)
      : emissao_(emissao), relatar_(std::move(relatar)) {}

  void DadosDoUsuario(const base::Record*) override {}
  std::int32_t NumeroDoErro() override { return outcome_.number; }
  std::string DescricaoDoErro() override { return outcome_.description; }
  std::string LocalDoErro() override { return outcome_.place; }
  std::string DescricaoDaFalha() override { return outcome_.sentence; }

  std::int16_t ExportarDadosCFeSATParaArquivo(std::string_view cabecalho, std::string_view itens,
                                              std::string_view pagamentos) override {
    return Exportar("ExportarDadosCFeSATParaArquivo",
                    [&] { arquivos_ = emissao_.Exportar(cabecalho, itens, pagamentos); });
  }
  std::int16_t ExportarDadosParaCancelarCFeSAT(std::string_view texto) override {
    // An instruction has no answer to wait for.
    return Exportar("ExportarDadosParaCancelarCFeSAT", [&] { emissao_.Instruir(texto); });
  }
  std::string NomeCompleDoArquivoDeEnvioComDadosCFeSAT() override { return arquivos_.envio; }
  std::string NomeCompleDoArquivoDeRetornoComDadosCFeSAT() override { return arquivos_.retorno; }
  bool EnvioFoiGravado() override { return !arquivos_.envio.empty(); }

 private:
  std::int16_t Exportar(std::string_view membro, const std::function<void()>& exportar) {
    arquivos_ = {};
    if (outcome_.Of(kIdentificador, membro, exportar) == servicos::kSucesso) {
      return servicos::kSucesso;
    }
    // The contract knows no refusal here.
    if (outcome_.description.empty()) outcome_.description = outcome_.sentence;
    if (relatar_) relatar_(outcome_.number, outcome_.description, outcome_.place);
    return servicos::kErro;
  }

  EmissaoDeCupons emissao_;
  RelatarFalha relatar_;
  Outcome outcome_;
  PastaDeTroca::Arquivos arquivos_;
};

}  // namespace

void RegistrarExportacaoFiscal(const std::shared_ptr<Banco>& banco, const std::string& pasta,
                               RelatarFalha relatar) {
  // The key of a sale that failed because the database was away stands in the archive meanwhile.
  banco->Sessao().OnReconnected(
      [banco = banco.get()] { CompletarCupons(*banco, Alcance::kEstaEstacao); });
  servicos::Registrar(
      clsOSExportarRegistros::kIdentificador,
      [emissao = EmissaoDeCupons(banco, PastaDe(*banco, pasta)), relatar = std::move(relatar)] {
        return std::make_unique<clsOSExportarRegistros>(emissao, relatar);
      });
}

void RetomarCupons(const std::shared_ptr<Banco>& banco, const std::string& pasta) {
  const PastaDeTroca troca = PastaDe(*banco, pasta);
  try {
    EmissaoDeCupons(banco, troca).Retomar();
    troca.LimparArquivo();
  } catch (const std::exception&) {
    // The next export does it, or tells what is in the way.
  }
}

std::function<bool(const std::string&)> ArquivoDaTroca(const Banco& banco,
                                                       const std::string& pasta) {
  return [troca = PastaDe(banco, pasta)](const std::string& arquivo) {
    return troca.GuardarEmVezDeApagar(arquivo);
  };
}

}  // namespace services
