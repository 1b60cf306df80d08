#include "services/venda/EmissaoDeCupons.h"

#include <cstdint>
#include <string>
#include <utility>

#include "base/RuntimeError.h"
#include "base/Text.h"
#include "base/Windows1252.h"
#include "services/Banco.h"
#include "services/troca/ExportacaoFiscal.h"
#include "services/troca/RespostasDaTroca.h"

namespace services {
namespace {

/// For how long a coupon without a sale may serve another try for it. Past that the customer has
/// gone, and the same lines are another sale.
constexpr std::int64_t kSegundosDeUmaVenda = std::int64_t{12} * 3600;
/// For how long an application that has taken the file may take to answer it.
constexpr std::int64_t kSegundosDeEspera = 600;

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

/// The line by which the application answered with this key.
std::string Resposta(const std::string& chave) {
  return "|OK||" + chave + "|\r\n";
}

}  // namespace

EmissaoDeCupons::EmissaoDeCupons(std::shared_ptr<Banco> banco, PastaDeTroca pasta)
    : banco_(std::move(banco)), pasta_(std::move(pasta)) {}

PastaDeTroca::Arquivos EmissaoDeCupons::Exportar(std::string_view cabecalho, std::string_view itens,
                                                 std::string_view pagamentos) const {
  std::string texto(cabecalho);
  const std::string bytes = Codificar(texto.append(itens).append(pagamentos));
  const RegistrosDoCupom registros = LerRegistrosDoCupom(cabecalho, itens, pagamentos);
  Retomar();
  const base::DateTime agora = banco_->Agora();
  for (const CupomIgual& cupom :
       CuponsIguais(*banco_, registros, agora.PlusSeconds(-kSegundosDeUmaVenda))) {
    if (!Serve(cupom, registros)) continue;
    banco_->CupomEmAndamento(cupom.numero);
    return cupom.arquivos;
  }
  banco_->CupomEmAndamento(0);
  std::int32_t numero = 0;
  auto arquivos = pasta_.Gravar(kArquivoDeEnvio, bytes, agora, [&](const auto& nomes) {
    numero = AbrirCupom(*banco_, registros, nomes);
  });
  banco_->CupomEmAndamento(numero);
  return arquivos;
}

void EmissaoDeCupons::Retomar() const {
  pasta_.Arrumar();
  CompletarCupons(*banco_, Alcance::kEstaEstacao);
  for (const CupomLargado& cupom : CuponsSemResposta(*banco_)) {
    if (!pasta_.EDeOutroPrograma(cupom.envio) && pasta_.Guardar(cupom.envio)) {
      MarcarRetirado(*banco_, cupom.numero);
    }
  }
}

bool EmissaoDeCupons::Serve(const CupomIgual& cupom, const RegistrosDoCupom& registros) const {
  if (pasta_.EDeOutroPrograma(cupom.arquivos.envio)) return false;
  const std::int32_t cliente =
      registros.codigoDoCliente != 0 ? registros.codigoDoCliente : banco_->ClienteEmAtendimento();
  // An error on the screen frees the customer: then they are not known, and the same lines decide.
  if (cliente != 0 && cupom.codigoDoCliente != 0 && cliente != cupom.codigoDoCliente) return false;
  const bool respondido = DevolverResposta(cupom.arquivos.retorno,
                                           cupom.temChave ? Resposta(cupom.chave) : std::string());
  const std::int64_t idade = banco_->Agora().Seconds() - cupom.quando.Seconds();
  if (!respondido && (cupom.temChave || idade >= kSegundosDeEspera)) return false;
  if (cupom.consumidor != registros.consumidor) {
    banco_->Avisar("O cupom desta venda já tinha sido pedido em " + base::ToText(cupom.quando) +
                   ", e ele foi usado com o documento do consumidor informado então. Se o "
                   "documento precisa mudar, cancele o cupom no aplicativo fiscal.");
  }
  return true;
}

PastaDeTroca::Arquivos EmissaoDeCupons::Instruir(std::string_view texto) const {
  const std::string bytes = Codificar(texto);
  pasta_.Arrumar();
  return pasta_.Gravar(kArquivoDeAdministracao, bytes, banco_->Agora());
}

}  // namespace services
