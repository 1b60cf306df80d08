#include "siblings/frmOrcamento.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/CampoDeValor.h"
#include "frame/CamposNumericos.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "siblings/EscolhaDeItem.h"

namespace siblings {
namespace {

using dados::clsOrcamentos;
using dados::Orcamento;
using frame::Coluna;
using frame::Ponto;
using platform::Align;
using platform::ZVFind;

constexpr std::string_view kUmaUnidade = "1,00";
constexpr std::string_view kDiasUsuais = "15";

enum ColunaDeItem : std::int32_t { kNumeroDoItem = 0 };
constexpr Coluna kColunas[] = {
    {"Item", 660, Align::kRightCenter, frame::kNumero, "Item"},
    {"Tipo", 1080, Align::kLeftCenter, frame::kTexto, "Tipo"},
    {"Código", 900, Align::kRightCenter, frame::kNumero, "Codigo"},
    {"Produto ou serviço", 3600, Align::kLeftCenter, frame::kTexto, "Nome"},
    {"Quantidade", 1140, Align::kRightCenter, frame::kNumero, "Quantidade"},
    {"Un.", 600, Align::kLeftCenter, frame::kTexto, "Unidade"},
    {"Valor unitário", 1320, Align::kRightCenter, frame::kNumero, "ValorUnitario"},
    {"Total", 1200, Align::kRightCenter, frame::kNumero, "ValorTotal"},
    {"", 0},
};

}  // namespace

frmOrcamento::frmOrcamento(const Cliente& cliente, const Animal& animal)
    : Form("frmOrcamento"), itens_(msfgGrade, kColunas) {
  orcamento_.codigoDoCliente = cliente.codigo;
  orcamento_.codigoDoAnimal = animal.codigo;
  orcamento_.nomeDoAnimal = animal.nome;
  optServico.Preset();
  zvtxtTotal.Locked.Assign(true);
  zvtxtTotal.tabStop = false;
  zvtxtObservacao.multiline = true;
  constexpr std::int32_t kMaiorObservacao = 500;
  constexpr std::int32_t kMaiorValor = 12;
  zvtxtObservacao.MaxLength.Assign(kMaiorObservacao);
  for (platform::ZVNumberBox* campo : {&zvnumQuantidade, &zvnumValorUnitario, &zvnumDesconto}) {
    campo->MaxLength.Assign(kMaiorValor);
  }
  zvnumDiasDeValidade.MaxLength.Assign(3);
  defaultButton = &zvcmdAdicionar;
  cancelButton = &zvcmdCancelar;
  LigarEventos();
  Desenhar();
  lblCliente.Caption.Assign(animal.nome + ", de " + cliente.apelido);
}

void frmOrcamento::LigarEventos() {
  UnloadEvent = [this](bool& ficar) { Form_Unload(ficar); };
  optServico.Click = [this] { optTipo_Click(); };
  optProduto.Click = [this] { optTipo_Click(); };
  zvfItem.KeyDown = [this](platform::KeyStroke&) { item_.reset(); };
  zvfItem.Click = [this] { zvfItem_Click(); };
  frame::LigarCampoDeQuantidade(zvnumQuantidade);
  frame::LigarCampoDeValor(zvnumValorUnitario);
  zvcmdAdicionar.Click = [this] { zvcmdAdicionar_Click(); };
  msfgGrade.KeyDown = [this](platform::KeyStroke& tecla) {
    if (tecla.key == platform::Key::kDelete) zvcmdRemover_Click();
  };
  zvcmdRemover.Click = [this] { zvcmdRemover_Click(); };
  zvnumDiasDeValidade.KeyPress = [](char32_t& tecla) { frame::FiltrarTeclaDeInteiro(tecla); };
  zvnumDiasDeValidade.GotFocus = [this] { frame::SelecionarTudo(zvnumDiasDeValidade); };
  frame::LigarCampoDeValor(zvnumDesconto);
  zvnumDesconto.LostFocus = [this] { zvnumDesconto_LostFocus(); };
  zvcmdSalvar.Click = [this] { zvcmdSalvar_Click(); };
  zvcmdCancelar.Click = [this] { zvcmdCancelar_Click(); };
}

std::int32_t frmOrcamento::MontarExibirFormulario() {
  frame::Procedimento(*this, "MontarExibirFormulario", [&](Ponto& ponto) {
    itens_.Esvaziar();
    zvnumDesconto.Text = std::string(frame::kZeroEmDinheiro);
    zvnumDiasDeValidade.Text = std::string(kDiasUsuais);
    LimparItem();
    Somar();
    ponto = 2;
    Activate = [this] { zvfItem.SetFocus(); };
    ShowModal();
  });
  return numero_;
}

void frmOrcamento::LimparItem() {
  item_.reset();
  zvfItem.Text = "";
  zvfItem.Status = ZVFind::kEmpty;
  zvnumQuantidade.Text = std::string(kUmaUnidade);
  zvnumValorUnitario.Text = std::string(frame::kZeroEmDinheiro);
}

void frmOrcamento::optTipo_Click() {
  frame::Procedimento(*this, "optTipo_Click", [&](Ponto&) {
    LimparItem();
    zvfItem.SetFocus();
  });
}

void frmOrcamento::zvfItem_Click() {
  frame::Procedimento(*this, "zvfItem_Click", [&](Ponto& ponto) {
    if (zvfItem.Status() != ZVFind::kTyped) {
      if (zvfItem.Status() == ZVFind::kFound) zvnumQuantidade.SetFocus();
      return;
    }
    ponto = 2;
    item_ = EscolherItem(*this, optServico.Value() ? servicos::kServico : servicos::kProduto,
                         base::Trim(zvfItem.Text()));
    if (!item_) {
      zvfItem.SetFocus();
      frame::SelecionarTudo(zvfItem);
      return;
    }
    ponto = 3;
    zvfItem.Text = item_->nome;
    zvfItem.Status = ZVFind::kFound;
    zvnumValorUnitario.Text = frame::TextoDeValor(item_->valorUnitario);
    zvnumQuantidade.SetFocus();
  });
}

bool frmOrcamento::ValidarItem() {
  frame::RestaurarCorDosRotulos(*this);
  const auto recusar = [](platform::Label& rotulo, platform::Control& campo, const char* texto) {
    return frame::Recusar(rotulo, texto, campo) == 0;
  };
  if (!item_) return recusar(lblItem, zvfItem, "Pesquise o produto ou o serviço.");
  frame::PreencherSeVazio(zvnumQuantidade, frame::kZeroEmDinheiro);
  frame::PreencherSeVazio(zvnumValorUnitario, frame::kZeroEmDinheiro);
  if (frame::LerCurrency(zvnumQuantidade) <= base::Currency()) {
    return recusar(lblQuantidade, zvnumQuantidade, "Informe a quantidade.");
  }
  if (frame::LerCurrency(zvnumValorUnitario) < base::Currency()) {
    return recusar(lblValorUnitario, zvnumValorUnitario, "Informe o valor unitário.");
  }
  return true;
}

void frmOrcamento::zvcmdAdicionar_Click() {
  frame::Procedimento(*this, "zvcmdAdicionar_Click", [&](Ponto& ponto) {
    if (!ValidarItem()) return;
    ponto = 2;
    item_->quantidade = frame::LerCurrency(zvnumQuantidade);
    item_->valorUnitario = frame::LerCurrency(zvnumValorUnitario);
    orcamento_.itens.push_back(*item_);
    MostrarItens();
    ponto = 3;
    LimparItem();
    zvfItem.SetFocus();
  });
}

void frmOrcamento::zvcmdRemover_Click() {
  frame::Procedimento(*this, "zvcmdRemover_Click", [&](Ponto& ponto) {
    const std::int32_t numero = base::ToInt32(base::Val(itens_.Selecionado(kNumeroDoItem)));
    if (numero == 0) {
      frame::Informar("Nenhum item para ser removido do orçamento.");
      return;
    }
    ponto = 2;
    const auto item = orcamento_.itens.begin() + (numero - 1);
    if (!frame::Perguntar("Deseja remover o item '" + item->nome + "'?")) return;
    orcamento_.itens.erase(item);
    MostrarItens();
  });
}

void frmOrcamento::MostrarItens() {
  base::RecordSet linhas(
      {"Item", "Tipo", "Codigo", "Nome", "Quantidade", "Unidade", "ValorUnitario", "ValorTotal"});
  std::int32_t numero = 0;
  for (const Orcamento::Item& item : orcamento_.itens) {
    linhas.Append({++numero, item.tipoDeLancamento == servicos::kServico ? "Serviço" : "Produto",
                   item.codigo, item.nome, item.quantidade, item.unidade, item.valorUnitario,
                   item.ValorTotal()});
  }
  itens_.Preencher(linhas);
  Somar();
}

void frmOrcamento::Somar() {
  zvtxtTotal.Text = base::FormatMoney(orcamento_.ValorBruto() - frame::LerCurrency(zvnumDesconto));
}

void frmOrcamento::zvnumDesconto_LostFocus() {
  frame::Procedimento(*this, "zvnumDesconto_LostFocus", [&](Ponto&) {
    frame::Normalizar(zvnumDesconto);
    Somar();
  });
}

bool frmOrcamento::Validar() {
  frame::RestaurarCorDosRotulos(*this);
  const auto recusar = [](platform::Label& rotulo, platform::Control& campo, const char* texto) {
    return frame::Recusar(rotulo, texto, campo) == 0;
  };
  constexpr double kMaisDias = 365;
  frame::Normalizar(zvnumDesconto);
  const double dias = base::Val(zvnumDiasDeValidade.Text());
  if (orcamento_.itens.empty()) {
    return recusar(lblItem, zvfItem, "Adicione pelo menos um produto ou serviço ao orçamento.");
  }
  if (item_ && !frame::Perguntar("O item '" + item_->nome +
                                 "' ainda não foi adicionado.\nDeseja salvar sem ele?")) {
    zvcmdAdicionar.SetFocus();
    return false;
  }
  if (dias < 1 || dias > kMaisDias) {
    return recusar(lblDiasDeValidade, zvnumDiasDeValidade,
                   "Informe a validade do orçamento, de 1 a 365 dias.");
  }
  if (frame::LerCurrency(zvnumDesconto) > orcamento_.ValorBruto()) {
    return recusar(lblDesconto, zvnumDesconto,
                   "O desconto é maior que a soma dos itens. Informe um desconto menor.");
  }
  return true;
}

void frmOrcamento::zvcmdSalvar_Click() {
  frame::Procedimento(*this, "zvcmdSalvar_Click", [&](Ponto& ponto) {
    if (!Validar()) return;
    ponto = 2;
    orcamento_.desconto = frame::LerCurrency(zvnumDesconto);
    orcamento_.diasDeValidade = base::ToInt32(base::Val(zvnumDiasDeValidade.Text()));
    orcamento_.observacao = base::Trim(zvtxtObservacao.Text());
    orcamento_.operador = NomeDoOperador();
    ponto = 3;
    const frame::PonteiroDeEspera espera(*this, platform::kHourglassPointer);
    auto orcamentos = frame::CriarServicoComSessao<clsOrcamentos>();
    if (!frame::Aceitar(orcamentos->Registrar(orcamento_), *orcamentos)) return;
    numero_ = orcamentos->Numero();
    ponto = 4;
    Unload();
  });
}

void frmOrcamento::zvcmdCancelar_Click() {
  Unload();
}

void frmOrcamento::Form_Unload(bool& ficar) {
  frame::Procedimento(*this, "Form_Unload", [&](Ponto&) {
    if (numero_ != 0 || orcamento_.itens.empty()) return;
    ficar = !frame::Perguntar("Deseja abandonar o orçamento?\nOs itens informados serão perdidos.");
  });
}

}  // namespace siblings
