#include "entry/clsCaixa.h"

#include <memory>

#include "frame/Procedimento.h"
#include "frame/Valores.h"
#include "frame/modFuncoes.h"
#include "platform/Desktop.h"
#include "sale/frmCaixaOperar.h"

namespace entry {

using frame::valores;

base::Value clsCaixa::CaixaOperar(std::int32_t janelaPrincipal, std::int32_t conteiner) {
  frame::Procedimento(frame::etiquetas::kCaixaOperar, [&](frame::Ponto& ponto) {
    valores().HandleDaJanelaPrincipal = janelaPrincipal;
    ponto = 2;
    auto novo = std::make_unique<sale::frmCaixaOperar>();
    sale::frmCaixaOperar& balcao = *novo;
    valores().frmCaixaOperarAtual = &balcao;
    platform::Desktop::Current().Adopt(conteiner, std::move(novo));
    ponto = 3;
    balcao.MontarExibirFormulario(conteiner);
  });
  return {};
}

void clsCaixa::DadosDoUsuario(const base::Record* dados) {
  valores().DadosDoUsuario = dados;
}

void clsCaixa::NomeDaAplicacao(std::string_view nome) {
  valores().NomeDaAplicacao = nome;
}

std::int32_t clsCaixa::CodigoDoClienteComOperacoesBloqueadas() const {
  return valores().CodigoDoClienteComOperacoesBloqueadas;
}

void clsCaixa::ClasseBloquearOuDesbloquearClienteParaOperacoesNosCaixas(std::int32_t codigo,
                                                                        std::int16_t acao) {
  frame::Procedimento(frame::etiquetas::kCaixaOperar, [&](frame::Ponto&) {
    frame::BloquearOuDesbloquearClienteParaOperacoesNosCaixas(codigo, acao);
  });
}

}  // namespace entry
