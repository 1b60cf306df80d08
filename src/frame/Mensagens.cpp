#include "frame/Mensagens.h"

#include <algorithm>

#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"

namespace frame {
namespace {

using platform::Answer;
using platform::Buttons;
using platform::Icon;

platform::Answer Exibir(std::string_view texto, Icon icone, Buttons botoes, Answer padrao) {
  return platform::Desktop::Current().Ask(
      {std::string(texto), valores().NomeDaAplicacao, icone, botoes, padrao});
}

}  // namespace

void Informar(std::string_view texto) {
  Exibir(texto, Icon::kInformation, Buttons::kOk, Answer::kOk);
}

void Parar(std::string_view texto) {
  Exibir(texto, Icon::kStop, Buttons::kOk, Answer::kOk);
}

bool Perguntar(std::string_view texto, Icon icone) {
  return Exibir(texto, icone, Buttons::kYesNo, Answer::kNo) == Answer::kYes;
}

bool Aceitar(std::int16_t resultado, servicos::ServicoDeNegocio& servico) {
  switch (resultado) {
    case servicos::kSucesso:
      return true;
    case servicos::kErro:
      ExibirErroDoServico(servico);
      return false;
    case servicos::kRecusaGrave:
      Parar(servico.DescricaoDaFalha());
      return false;
    default:
      Informar(servico.DescricaoDaFalha());
      return false;
  }
}

void RestaurarCorDosRotulos(platform::Form& formulario,
                            std::initializer_list<std::string_view> exceto) {
  for (platform::Control* controle : formulario.Controls()) {
    if (controle->GetKind() != platform::Kind::kLabel) continue;
    if (controle->Name() == "lblObservacaoDeCamposObrigatorios") continue;
    if (std::find(exceto.begin(), exceto.end(), controle->Name()) != exceto.end()) continue;
    controle->ForeColor = kCorNormal;
  }
}

std::int16_t Recusar(platform::Label& rotulo, std::string_view texto, platform::Control& foco) {
  rotulo.ForeColor = kCorDeRecusa;
  Informar(texto);
  foco.SetFocus();
  return 1;
}

}  // namespace frame
