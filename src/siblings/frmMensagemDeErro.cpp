#include "siblings/frmMensagemDeErro.h"

#include <string>

#include "base/Numbers.h"
#include "platform/Layout.h"

namespace siblings {

using namespace platform;

frmMensagemDeErro::frmMensagemDeErro() : Form("frmMensagemDeErro") {
  zvcmdFechar.Click = [this] { Hide(); };
  zvmemDetalhes.Locked.Assign(true);
  // The keyboard begins on the way out.
  Arrange({.size = {8250, 4800},
           .places = {
               {zvTheme, {0, 0, 8250, 645}, "Erro", Look::kNormal, kHoldWidth},
               {picRodape, {0, 3990, 8250, 810}, "", Look::kFooter, kHoldWidth},
               {zvcmdFechar, {6630, 180, 1380, 450}, "Fechar", Look::kPrimary, kHoldTopRight},
               {lblDescricao, {240, 855, 7770, 690}, "", Look::kTitle, kHoldWidth},
               {lblOrientacao,
                {240, 1590, 7770, 510},
                "A operação não foi concluída. Se o erro se repetir, informe ao suporte os dados "
                "abaixo.",
                Look::kHint,
                kHoldWidth},
               {lblDetalhes, {240, 2190, 7770, 210}, "Dados para o suporte"},
               {zvmemDetalhes, {240, 2430, 7770, 1350}, "", Look::kNormal, kHoldWidth},
           }});
  defaultButton = &zvcmdFechar;
  cancelButton = &zvcmdFechar;
}

void frmMensagemDeErro::MontarExibirFormulario(std::int32_t numero, std::string_view descricao,
                                               std::string_view local,
                                               std::string_view nomeDaAplicacao) {
  Caption = std::string(nomeDaAplicacao);
  // What the database itself says stands in brackets after the sentence, and is for the support.
  const std::size_t frase = descricao.find(". (");
  lblDescricao.Caption =
      std::string(frase == std::string_view::npos ? descricao : descricao.substr(0, frase + 1));
  zvmemDetalhes.Text = "Número: " + base::ToText(numero) +
                       "\nDescrição: " + std::string(descricao) + "\nLocal: " + std::string(local);
  ShowModal();
}

}  // namespace siblings
