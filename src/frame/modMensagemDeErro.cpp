#include "frame/modMensagemDeErro.h"

#include <string>

#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"

namespace frame {
namespace {

constexpr std::string_view kNomeDoModulo = "ZOVA_A_Caixa";

/// How many reports are being made: an error inside one goes up instead of being reported.
int relatos = 0;

struct Relato {
  Relato() { ++relatos; }
  ~Relato() { --relatos; }
  Relato(const Relato&) = delete;
  Relato& operator=(const Relato&) = delete;
};

}  // namespace

void ExibirMensagemDeErro(std::int32_t numero, std::string_view descricao, std::string_view local) {
  const Relato relato;
  if (valores().CodigoDoClienteComOperacoesBloqueadas != 0) {
    BloquearOuDesbloquearClienteParaOperacoesNosCaixas(
        valores().CodigoDoClienteComOperacoesBloqueadas, kDesbloquear);
  }
  ExibirRelato(numero, descricao, local);
}

void ExibirRelato(std::int32_t numero, std::string_view descricao, std::string_view local) {
  auto mensagem = servicos::CriarServico<servicos::ZOVA_A_MsgErro::clsMensagem>();
  mensagem->Exibir(numero, descricao, local, valores().NomeDaAplicacao);
}

void ExibirErroDoServico(servicos::ServicoDeNegocio& servico) {
  const std::int32_t numero = servico.NumeroDoErro();
  const std::string descricao = servico.DescricaoDoErro();
  const std::string local = servico.LocalDoErro();
  ExibirMensagemDeErro(numero, descricao, local);
}

void RelatarErro(const base::RuntimeError& erro, const Etiqueta& etiqueta, Ponto ponto) {
  if (relatos > 0) throw erro;
  ExibirMensagemDeErro(erro.Number(), erro.Description(),
                       std::string(kNomeDoModulo) + ", " + std::string(etiqueta.tela) + ", " +
                           std::string(etiqueta.rotina) + ", Ponto: " + std::to_string(ponto));
}

}  // namespace frame
