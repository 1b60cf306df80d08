#include "sale/FaixaDeCaixas.h"

#include "base/Text.h"
#include "frame/ArquivoIni.h"
#include "frame/Valores.h"
#include "frame/servicos/Codigos.h"
#include "sale/TelaDoBalcao.h"

namespace sale {

using frame::valores;
using servicos::kCaixaAberto;
using servicos::kCaixaFechado;

namespace {

/// An item of the list: the name in the first hundred characters, the state behind it.
constexpr std::size_t kLarguraDoNome = 100;

constexpr std::string_view kSecao = "Caixa", kChave = "NumeroDoCaixa";

struct AspectoDaSituacao {
  std::string_view palavra;
  platform::Color cor;
  std::string_view aviso;
};

AspectoDaSituacao Aspecto(std::int32_t situacao) {
  switch (situacao) {
    case kCaixaAberto:
      return {"Aberto", platform::Rgb(11, 107, 93), ""};
    case kCaixaFechado:
      return {"Fechado", platform::Rgb(146, 84, 0),
              "O caixa está fechado. Para vender, escolha 'Abertura' no menu ao lado."};
    default:
      return {"Fora de operação", platform::Rgb(163, 32, 32),
              "Este caixa está fora de operação. Selecione outro caixa."};
  }
}

}  // namespace

void FaixaDeCaixas::Acrescentar(const base::RecordSet& caixa) {
  const std::string nome = base::ToText(caixa.Fields("LocalDeAtendimento"));
  tela_.zvcmbCaixas.AddItem(
      base::PadRight(nome, kLarguraDoNome) + base::ToText(caixa.Fields("Status")),
      base::ToInt32(base::Val(caixa.Fields("Numero"))));
}

bool FaixaDeCaixas::Escolhido() const {
  return tela_.zvcmbCaixas.ListIndex() != -1;
}

std::int32_t FaixaDeCaixas::Numero() const {
  return Escolhido() ? tela_.zvcmbCaixas.ItemData(tela_.zvcmbCaixas.ListIndex()) : -1;
}

void FaixaDeCaixas::Escolher(std::int32_t numero) {
  const std::int32_t indice = tela_.zvcmbCaixas.IndexOfData(numero);
  if (indice != -1) tela_.zvcmbCaixas.ListIndex = indice;
}

void FaixaDeCaixas::Tomar() const {
  valores().NumeroDoCaixa = Numero();
  if (!Escolhido()) return;
  valores().LocalDeAtendimentoDoCaixa =
      base::Trim(base::Left(tela_.zvcmbCaixas.Text(), kLarguraDoNome));
}

std::int32_t FaixaDeCaixas::Situacao() const {
  if (!Escolhido()) return servicos::kCaixaForaDeOperacao;
  return base::ToInt32(base::ToDouble(base::Mid(tela_.zvcmbCaixas.Text(), kLarguraDoNome + 1)));
}

void FaixaDeCaixas::Oferecer(std::int32_t situacao) {
  for (const auto& botao : tela_.tbMenuCaixa.All()) {
    botao->Enabled = situacao == (botao->Key() == "Abertura" ? kCaixaFechado : kCaixaAberto);
  }
  const AspectoDaSituacao aspecto = Aspecto(situacao);
  tela_.lblSituacaoDoCaixa.Visible = Escolhido();
  tela_.lblSituacaoDoCaixa.Caption = std::string(aspecto.palavra);
  tela_.lblSituacaoDoCaixa.ForeColor = aspecto.cor;
  tela_.lblAvisoDoCaixa.Caption =
      std::string(Escolhido() ? aspecto.aviso : "Selecione um caixa para começar.");
  tela_.lblAvisoDoCaixa.Visible = situacao != kCaixaAberto;
  tela_.picAreaDeTrabalho.Visible = situacao == kCaixaAberto;
}

void FaixaDeCaixas::LerArquivo() {
  const std::string lido = frame::LerValorDoArquivoIni(kSecao, kChave);
  if (lido == frame::kNenhumValorLido) {
    GravarArquivo();
  } else {
    valores().NumeroDoCaixa = base::ToInt32(base::ToDouble(lido));
  }
}

void FaixaDeCaixas::GravarArquivo() {
  frame::GravarValorNoArquivoIni(kSecao, kChave, base::ToText(valores().NumeroDoCaixa));
}

}  // namespace sale
