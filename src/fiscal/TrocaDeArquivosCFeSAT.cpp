#include "fiscal/TrocaDeArquivosCFeSAT.h"

#include <exception>
#include <optional>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/servicos/ArquivoDeRetorno.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "platform/Desktop.h"

namespace fiscal {

using base::RuntimeError;
using frame::Ponto;
using frame::valores;
using platform::Desktop;
using platform::Icon;
using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;

namespace {

constexpr double kTempoDeEspera = 10;
constexpr double kPausaEntreLeituras = 5;
constexpr std::int16_t kMaximoDeTentativas = 4;
constexpr std::int16_t kLeituraDesistida = 4;
constexpr std::int16_t kRecusado = 1;

constexpr std::string_view kArquivoNaoLido =
    "O aplicativo da empresa de integração responsável pela emissão do documento fiscal, "
    "ainda não fez a leitura do arquivo gerado com os dados para emissão.\n\n"
    "Para corrigir esta situação:\n\n"
    "\t1. Verifique se o aplicativo da empresa de integração está em execução.\n\n"
    "Deseja aguardar a leitura do arquivo? (recomendável aguardar.)";
constexpr std::string_view kTituloDeArquivoNaoLido = "pstrNomeDaAplicacao";
constexpr std::string_view kRetornoNaoGerado =
    "O arquivo de retorno da empresa de integração responsável pela emissão do documento fiscal, "
    "ainda não foi gerado com os dados para validação.\n\n"
    "Para corrigir esta situação:\n\n"
    "\t1. Verifique se o aplicativo da empresa de integração está em execução.\n\n"
    "Deseja aguardar? (recomendável aguardar)";
constexpr std::string_view kCancelarGeraErros =
    "CANCELAR esta operação poderá gerar ERROS de VALIDAÇÃO.\n"
    "Por tratar-se de um retorno de informação do site da SEFAZ.\n\n"
    "Antes de cancelar verifique se o aplicativo da empresa de integração está em execução, ou "
    "ligue para suporte técnico.\n\n"
    "Deseja aguardar? (recomendável aguardar)";
constexpr std::string_view kContateOSuporte =
    "Para corrigir esta situação:\n\n"
    "\t1. Entre em contato com o suporte técnico, e informe o erro identificado.\n\n";

bool Perguntar(std::string_view texto, std::string_view titulo) {
  return Desktop::Current().Ask({std::string(texto), std::string(titulo), Icon::kQuestion,
                                 platform::Buttons::kYesNo, platform::Answer::kNo}) ==
         platform::Answer::kYes;
}

void ApagarSeExistir(const std::string& arquivo) {
  Desktop& desktop = Desktop::Current();
  if (desktop.FileExists(arquivo)) desktop.DeleteFile(arquivo);
}

/// What comes once the coupon may have been issued goes on after an error: only the answer counts.
template <class Acao>
void SeguirAposErro(Acao acao) {
  try {
    acao();
  } catch (const RuntimeError&) {
  }
}

/// Takes the file handed over back when a host ends in the middle of the exchange that cannot wait
/// for its end: its sale is never registered then, and no coupon may be issued from a file that
/// nobody has read yet.
class EnvioEmAberto {
 public:
  explicit EnvioEmAberto(const std::string& arquivo) : arquivo_(arquivo) {}
  ~EnvioEmAberto() {
    if (std::uncaught_exceptions() > antes_) SeguirAposErro([&] { ApagarSeExistir(arquivo_); });
  }
  EnvioEmAberto(const EnvioEmAberto&) = delete;
  EnvioEmAberto& operator=(const EnvioEmAberto&) = delete;

 private:
  const std::string& arquivo_;
  const int antes_ = std::uncaught_exceptions();
};

/// Lets the screens live until the file is there, or gone, as `presente` says. The clock is read
/// again after each presence test, which on a slow network takes its time: when that brings the
/// limit, the operator is asked whether to wait as long again. When the limit comes while events
/// are processed, the wait ends in silence. False when the operator gives up.
template <class Continuar>
bool EsperarArquivo(const std::string& arquivo, bool presente, Continuar desejaContinuar) {
  Desktop& desktop = Desktop::Current();
  double inicio = desktop.Elapsed();
  while (desktop.Elapsed() - inicio < kTempoDeEspera) {
    if (desktop.FileExists(arquivo) == presente) break;
    if (desktop.Elapsed() - inicio >= kTempoDeEspera) {
      if (!desejaContinuar()) return false;
      inicio = desktop.Elapsed();
    }
    desktop.ProcessEvents();
  }
  return true;
}

bool EsperarQueLeiam(const std::string& envio) {
  const bool seguir = EsperarArquivo(
      envio, false, [] { return Perguntar(kArquivoNaoLido, kTituloDeArquivoNaoLido); });
  if (!seguir) ApagarSeExistir(envio);
  return seguir;
}

bool EsperarQueRespondam(const std::string& retorno) {
  return EsperarArquivo(retorno, true, [] {
    return frame::Perguntar(kRetornoNaoGerado, Icon::kInformation) ||
           frame::Perguntar(kCancelarGeraErros, Icon::kStop);
  });
}

std::string DescricaoDaFalha(const RuntimeError& falha, const std::string& arquivo) {
  switch (static_cast<base::Fault>(falha.Number())) {
    case base::Fault::kTypeMismatch:
      return "Incompatibilidade de tipo.";
    case base::Fault::kFileNotFound:
      return "Não foi encontrado o arquivo  '" + arquivo + "' informado.";
    case base::Fault::kPathNotFound:
      return "O caminho informado não foi encontrado.";
    default:
      return falha.Description();
  }
}

void AvisarQueNaoFoiLido(const RuntimeError& falha, const std::string& arquivo) {
  frame::Parar("A leitura do arquivo '" + arquivo + "' não foi possível neste computador. \n\n" +
               base::ToText(falha.Number()) + "-" + DescricaoDaFalha(falha, arquivo) + "\n\n" +
               std::string(kContateOSuporte) +
               "\t2. Não inclua produto(s) na grade de itens de vendas.");
}

void AvisarDaRecusa(const std::string& erro) {
  frame::Parar(
      "Houve um erro na tentativa da emissão do documento fiscal. \n\nIdentificação do erro: \n\n"
      "\t" +
      (erro.empty() ? "ERRO DESCONHECIDO." : erro) + "\n\n" + std::string(kContateOSuporte) +
      "\t2. Não inclua produto(s) na da grade de itens de vendas.");
}

}  // namespace

bool TrocaDeArquivosCFeSAT::ExportarDadosCFeSATParaArquivo(std::string_view cabecalho,
                                                           std::string_view itens,
                                                           std::string_view pagamentos) {
  bool concluida = false;
  frame::Procedimento(frame::etiquetas::kExportarDadosCFeSATParaArquivo, [&](Ponto& ponto) {
    if (!frame::EmiteDocumentoFiscal()) {
      concluida = true;
      return;
    }
    ponto = 2;
    auto servico = servicos::CriarServico<clsOSExportarRegistros>();
    if (servico->ExportarDadosCFeSATParaArquivo(cabecalho, itens, pagamentos) == servicos::kErro) {
      return;
    }
    ponto = 3;
    const std::string envio = servico->NomeCompleDoArquivoDeEnvioComDadosCFeSAT();
    const std::string retorno = servico->NomeCompleDoArquivoDeRetornoComDadosCFeSAT();
    const bool gravado = servico->EnvioFoiGravado();
    servico.reset();
    ponto = 4;
    // A file that was written and is gone by now was taken.
    if (!Desktop::Current().FileExists(envio) && !gravado) return;
    ponto = 5;
    const EnvioEmAberto emAberto(envio);
    if (!EsperarQueLeiam(envio)) return;
    ponto = 6;
    if (!EsperarQueRespondam(retorno)) return;
    ponto = 7;
    concluida = Concluir(envio, retorno);
  });
  return concluida;
}

bool TrocaDeArquivosCFeSAT::Concluir(const std::string& envio, const std::string& retorno) {
  bool recusado = false;
  do {
    SeguirAposErro([&] { recusado = LerArquivoDeRetornoCFeSAT(retorno) == kRecusado; });
  } while (!recusado && StatusDaLeituraDoRetorno >= 1 &&
           StatusDaLeituraDoRetorno < kLeituraDesistida);
  const bool desistiu = !recusado && StatusDaLeituraDoRetorno == kLeituraDesistida;
  if (desistiu) SeguirAposErro([&] { ApagarSeExistir(envio); });
  SeguirAposErro([&] { ApagarSeExistir(retorno); });
  return !desistiu;
}

std::int16_t TrocaDeArquivosCFeSAT::LerArquivoDeRetornoCFeSAT(const std::string& nomeDoArquivo) {
  Desktop& desktop = Desktop::Current();
  ++TentativasDeLeituraDoRetorno;
  std::optional<RuntimeError> falha;
  std::string bytes;
  try {
    bytes = desktop.ReadFile(nomeDoArquivo);
  } catch (const RuntimeError& erro) {
    falha = erro;
  }
  if (falha) {
    desktop.Freeze(kPausaEntreLeituras);
    if (TentativasDeLeituraDoRetorno >= kMaximoDeTentativas) {
      StatusDaLeituraDoRetorno = kLeituraDesistida;
      AvisarQueNaoFoiLido(*falha, nomeDoArquivo);
      return 0;
    }
    StatusDaLeituraDoRetorno = TentativasDeLeituraDoRetorno;
    bytes = desktop.ReadFile(nomeDoArquivo);
  }
  return Interpretar(bytes);
}

std::int16_t TrocaDeArquivosCFeSAT::Interpretar(std::string_view bytes) {
  const servicos::Retorno retorno = servicos::LerRetorno(servicos::TextoDoArquivo(bytes));
  if (!retorno.emitido) {
    AvisarDaRecusa(retorno.erro);
    return kRecusado;
  }
  valores().ChaveSAT = retorno.chave;
  StatusDaLeituraDoRetorno = 0;
  return 0;
}

}  // namespace fiscal
