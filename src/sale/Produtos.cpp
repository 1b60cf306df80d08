#include <optional>

#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Consultas.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "lookup/frmPesquisaDeProdutos.h"
#include "lookup/frmPesquisaDeServicos.h"
#include "platform/Input.h"
#include "sale/CodigoDeBalanca.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using lookup::frmPesquisa;
using lookup::ItemEncontrado;
using lookup::Selecao;
using platform::ZVFind;

namespace {

constexpr std::size_t kMenosDigitos = 13, kMaisDigitos = 14;
constexpr char kInicioDeBalanca = '2';

/// A code field as the searches take it: 0 when it is empty.
double CodigoDe(const ZVFind& campo) {
  const std::string texto = base::Trim(campo.Text());
  return texto.empty() ? 0 : base::ToDouble(texto);
}

std::string NenhumProduto(const std::string& nome, const std::string& codigoDeBarras,
                          double codigoInterno) {
  if (!nome.empty()) return "Nenhum produto encontrado com o nome '" + nome + "'.";
  if (!codigoDeBarras.empty()) {
    return "Nenhum produto encontrado com o código de barras '" + codigoDeBarras + "'.";
  }
  return "Nenhum produto encontrado com o código interno '" + base::ToText(codigoInterno) +
         "' informado.";
}

void NadaEncontrado(const std::string& mensagem) {
  frame::Informar(mensagem);
  platform::input::SendKeys("+({HOME})");
}

}  // namespace

void frmCaixaOperar::zvfCodigoDeBarrasDoProduto_Click() {
  Procedimento(*this, "zvfCodigoDeBarrasDoProduto_Click", [&](Ponto& ponto) {
    ZVFind& campo = zvfCodigoDeBarrasDoProduto;
    if (campo.Status() == ZVFind::kEmpty) {
      VoltarAoCampo(campo);
      return;
    }
    if (campo.Status() != ZVFind::kTyped) return;
    ponto = 2;
    const std::string codigo = base::Trim(campo.Text());
    const std::size_t digitos = base::Length(codigo);
    if (digitos < kMenosDigitos || digitos > kMaisDigitos) {
      campo.Enabled = true;
      frame::Informar("Informe um código de barras de 13 ou 14 dígitos.");
      if (campo.Style() != ZVFind::kTextStyle) campo.SetFocus();
      return;
    }
    ponto = 3;
    zvfNomeDoProduto.Text = "";
    zvfCodigoInternoDoProduto.Text = "";
    const bool daBalanca = codigo.starts_with(kInicioDeBalanca);
    double codigoInterno = 0;
    if (daBalanca) {
      zvfCodigoInternoDoProduto.Status = ZVFind::kFound;
      zvfCodigoInternoDoProduto.Text = CodigoInternoDaBalanca(codigo);
      codigoInterno = base::ToDouble(zvfCodigoInternoDoProduto.Text());
    }
    if (!PesquisarProduto("", codigo, codigoInterno)) {
      if (SemCliente()) return;
      // Nothing of the item found before stays behind: neither its price nor its quantity can be
      // added.
      campo.Status = ZVFind::kFound;
      VoltarAoCampo(campo);
      return;
    }
    if (!daBalanca) {
      AbrirCamposDoProdutoEncontrado();
      return;
    }
    if (!PesarNaBalanca()) return;
    HabilitarDesabilitarCampos(true);
    zvcmbComissionado.SetFocus();
  });
}

/// The quantity of a product that was weighed. Only the barcode that the service gave back counts,
/// and that stands in the field by now: for a product sold by weight it is the scanned one.
bool frmCaixaOperar::PesarNaBalanca() {
  const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
  if (!leitura.empresa) return false;
  if (leitura.empresa->RecordCount() == 0) {
    frame::Informar(
        "Não foi possível recuperar dados porque empresa não esta cadastrada.\nEfetue o cadastro e "
        "tente novamente");
    return false;
  }
  const std::int32_t formato =
      base::ToInt32(base::Val(leitura.empresa->Fields("FormatoDeCodigoDeBarrasParaBalanca")));
  if (!PreencherComboboxComissionados(kProduto)) return false;
  const auto quantidade = QuantidadeDaBalanca(zvfCodigoDeBarrasDoProduto.Text(), formato,
                                              frame::LerCurrency(zvnumValorUnitario));
  if (quantidade) zvnumQuantidade.Text = base::Format(*quantidade, base::kWeightMask);
  return true;
}

// One routine for the four fields of names and codes: a search, or a clear, by the field's status.
void frmCaixaOperar::PesquisarOuLimparItem(ZVFind& campo) {
  const bool deServico = item_.EhDeServico(campo);
  if (campo.Status() == ZVFind::kEmpty) {
    VoltarAoCampo(campo);
    return;
  }
  if (campo.Status() != ZVFind::kTyped) return;
  if (deServico && zvcmbTiposDeServicos.ListIndex() == -1) {
    frame::Informar("Selecione o tipo de serviço.");
    zvcmbTiposDeServicos.SetFocus();
    return;
  }
  if (lookup::PesquisaCurtaDemais(campo)) return;
  for (ZVFind* outro : item_.Companheiros(campo)) outro->Text = "";
  const bool encontrado =
      deServico
          ? PesquisarServico(base::ToInt16(item_.TipoDeServico()),
                             base::Trim(zvfNomeDoServico.Text()), CodigoDe(zvfCodigoDoServico))
          : PesquisarProduto(base::Trim(zvfNomeDoProduto.Text()),
                             base::Trim(zvfCodigoDeBarrasDoProduto.Text()),
                             CodigoDe(zvfCodigoInternoDoProduto));
  if (SemCliente()) return;
  if (!encontrado) {
    RecomecarItem(campo);
    campo.Status = ZVFind::kFound;
    return;
  }
  if (!deServico) AbrirCamposDoProdutoEncontrado();
}

void frmCaixaOperar::AbrirCamposDoProdutoEncontrado() {
  if (!PreencherComboboxComissionados(kProduto)) return;
  HabilitarDesabilitarCampos(true);
  optServico.Enabled = zvcmbAnimal.ListCount() > 0;
  zvcmbComissionado.SetFocus();
}

/// The products found, the cursor on the first. None after a fault, and where there are none or the
/// operator has cleared the counter during the wait: then the item is wanted no more.
Selecao frmCaixaOperar::SelecionarProdutos(const std::string& nome,
                                           const std::string& codigoDeBarras,
                                           double codigoInterno) {
  frame::Espera espera(painelDeMensagem_);
  auto produtos = servicos::CriarServico<servicos::ZOVA_N_Produtos::clsProdutos>();
  const bool falhou = frame::consultas::Produtos(*produtos, nome, codigoDeBarras, codigoInterno);
  espera.Ocultar();
  if (falhou) {
    frame::ExibirErroDoServico(*produtos);
    return {};
  }
  if (SemCliente()) return {};
  const base::RecordSetPtr encontrados = produtos->ResultadoDaSelecaoEmRecordSet();
  if (encontrados->RecordCount() == 0) {
    NadaEncontrado(NenhumProduto(nome, codigoDeBarras, codigoInterno));
    return {};
  }
  encontrados->MoveFirst();
  if (encontrados->RecordCount() == 1) return {encontrados, {}};
  return {encontrados, frmPesquisa::AvisoDaSelecao(*produtos, *encontrados)};
}

bool frmCaixaOperar::PesquisarProduto(const std::string& nome, const std::string& codigoDeBarras,
                                      double codigoInterno) {
  bool encontrado = false;
  Procedimento(*this, "PesquisarProduto", [&](Ponto& ponto) {
    const Selecao produtos = SelecionarProdutos(nome, codigoDeBarras, codigoInterno);
    if (!produtos.registros) return;
    ponto = 2;
    const std::optional<ItemEncontrado> produto = produtos.registros->RecordCount() == 1
                                                      ? lookup::ProdutoDe(*produtos.registros)
                                                      : lookup::EscolherProduto(produtos);
    if (!produto) return;
    ponto = 3;
    item_.Receber(*produto);
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
    zvnumQuantidade.Text = "1,000";
    zvnumValorUnitario.Text = produto->valorDeVenda;
    encontrado = true;
  });
  return encontrado;
}

bool frmCaixaOperar::PesquisarServico(std::int16_t tipo, const std::string& nome, double codigo) {
  bool encontrado = false;
  Procedimento(*this, "PesquisarServico", [&](Ponto& ponto) {
    frame::Espera espera(painelDeMensagem_);
    auto catalogo = servicos::CriarServico<servicos::ZOVA_N_Servicos::clsServicos>();
    ponto = 2;
    const bool falhou = frame::consultas::Servicos(*catalogo, tipo, nome, codigo);
    espera.Ocultar();
    if (falhou) {
      frame::ExibirErroDoServico(*catalogo);
      return;
    }
    if (SemCliente()) return;
    ponto = 3;
    const base::RecordSetPtr encontrados = catalogo->ResultadoDaSelecaoEmRecordSet();
    if (encontrados->RecordCount() == 0) {
      const std::string fim =
          "' informado e com o tipo de serviço '" + zvcmbTiposDeServicos.Text() + "'.";
      NadaEncontrado(nome.empty()
                         ? "Nenhum produto encontrado com o código '" + base::ToText(codigo) + fim
                         : "Nenhum serviço encontrado com o nome '" + nome + fim);
      return;
    }
    ponto = 4;
    encontrados->MoveFirst();
    const std::optional<ItemEncontrado> servico =
        encontrados->RecordCount() == 1
            ? lookup::ServicoDe(*encontrados)
            : lookup::EscolherServico(
                  {encontrados, frmPesquisa::AvisoDaSelecao(*catalogo, *encontrados)},
                  zvcmbTiposDeServicos);
    if (!servico) return;
    ponto = 5;
    item_.Receber(*servico);
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
    zvnumQuantidade.Text = "1";
    zvnumValorUnitario.Text = servico->valorDeVenda;
    RecuperaDescontoDoCliente();
    if (zvcmbAnimal.Enabled()) {
      zvcmbAnimal.SetFocus();
    } else {
      zvcmbComissionado.SetFocus();
    }
    encontrado = true;
  });
  return encontrado;
}

}  // namespace sale
