#include <memory>
#include <string>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Windows1252.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "services/ExportacaoFiscal.h"
#include "services/Outcome.h"
#include "services/PastaDeTroca.h"

namespace services {
namespace {

constexpr std::string_view kEnvio = "CFE-ENVIO-";
constexpr std::string_view kAdministracao = "CFE-ADMIN-";

/// In the exchange's encoding; a character that is not there is never replaced by another.
std::string Codificar(std::string_view texto) {
  std::string bytes;
  bytes.reserve(texto.size());
  while (!texto.empty()) {
    const char32_t caractere = base::TakeCharacter(texto);
    const auto byte = base::ToWindows1252(caractere);
    if (!byte) {
      throw base::RuntimeError(static_cast<std::int32_t>(FalhaNaExportacao::kCharacter),
                               "O cupom tem um caractere que o aplicativo fiscal não lê: '" +
                                   base::FromCharacters({&caractere, 1}) +
                                   "'. Corrija o cadastro em que ele está e confirme de novo.");
    }
    bytes += *byte;
  }
  return bytes;
}

class clsOSExportarRegistros : public servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros {
 public:
  clsOSExportarRegistros(const PastaDeTroca& pasta, RelatarFalha relatar)
      : pasta_(pasta), relatar_(std::move(relatar)) {}

  void DadosDoUsuario(const base::Record*) override {}
  std::int32_t NumeroDoErro() override { return outcome_.number; }
  std::string DescricaoDoErro() override { return outcome_.description; }
  std::string LocalDoErro() override { return outcome_.place; }
  std::string DescricaoDaFalha() override { return outcome_.sentence; }

  std::int16_t ExportarDadosCFeSATParaArquivo(std::string_view cabecalho, std::string_view itens,
                                              std::string_view pagamentos) override {
    std::string texto(cabecalho);
    texto.append(itens).append(pagamentos);
    return Gravar("ExportarDadosCFeSATParaArquivo", kEnvio, texto);
  }
  std::int16_t ExportarDadosParaCancelarCFeSAT(std::string_view texto) override {
    const std::int16_t situacao = Gravar("ExportarDadosParaCancelarCFeSAT", kAdministracao, texto);
    arquivos_ = {};  // An instruction has no answer to wait for.
    return situacao;
  }
  std::string NomeCompleDoArquivoDeEnvioComDadosCFeSAT() override { return arquivos_.envio; }
  std::string NomeCompleDoArquivoDeRetornoComDadosCFeSAT() override { return arquivos_.retorno; }

 private:
  std::int16_t Gravar(std::string_view membro, std::string_view especie, std::string_view texto) {
    arquivos_ = {};
    const std::int16_t situacao = outcome_.Of(
        kIdentificador, membro, [&] { arquivos_ = pasta_.Gravar(especie, Codificar(texto)); });
    if (situacao == servicos::kErro && relatar_) {
      relatar_(outcome_.number, outcome_.description, outcome_.place);
    }
    return situacao;
  }

  PastaDeTroca pasta_;
  RelatarFalha relatar_;
  Outcome outcome_;
  PastaDeTroca::Arquivos arquivos_;
};

}  // namespace

void RegistrarExportacaoFiscal(const std::string& pasta, const base::Clock& relogio,
                               const std::string& computador, RelatarFalha relatar) {
  servicos::Registrar(
      clsOSExportarRegistros::kIdentificador,
      [troca = PastaDeTroca(pasta, relogio, computador), relatar = std::move(relatar)] {
        return std::make_unique<clsOSExportarRegistros>(troca, relatar);
      });
}

}  // namespace services
