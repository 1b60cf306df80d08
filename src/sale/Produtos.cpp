#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/modMensagemDeErro.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "lookup/frmPesquisaDeProdutos.h"
#include "lookup/frmPesquisaDeServicos.h"
#include "platform/Input.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

namespace {

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

/// Shows a pick list with what was found; whether the operator chose a row.
bool EscolherDaLista(lookup::frmPesquisa& lista, const base::RecordSetPtr& encontrados,
                     const std::string& aviso) {
  const frame::FundoEscuro fundo;
  std::int16_t falha = 0;
  lista.ConfigurarGrade(falha);
  if (falha == 0) lista.PreencherGrade(encontrados, falha, aviso);
  if (falha == 1) return false;
  lista.ShowModal();
  return lista.RegistroSelecionado();
}

}  // namespace

base::RecordSetPtr frmCaixaOperar::SelecionarProduto(const std::string& nome,
                                                     const std::string& codigoDeBarras,
                                                     double codigoInterno, std::string* aviso) {
  frame::Espera espera(painelDeMensagem_);
  auto produtos = servicos::CriarServico<servicos::ZOVA_N_Produtos::clsProdutos>();
  std::string nomeProcurado = nome, codigoProcurado = codigoDeBarras;
  const bool falhou =
      produtos->Selecionar(2, 0, 1, "", nomeProcurado, codigoProcurado, codigoInterno);
  espera.Ocultar();
  if (falhou) {
    frame::ExibirErroDoServico(*produtos);
    return nullptr;
  }
  // The operator may clear the counter during the wait: then the item is wanted no more.
  if (SemCliente()) return nullptr;
  base::RecordSetPtr linhas = produtos->ResultadoDaSelecaoEmRecordSet();
  if (linhas->RecordCount() == 0) {
    NadaEncontrado(NenhumProduto(nome, codigoDeBarras, codigoInterno));
    return nullptr;
  }
  linhas->MoveFirst();
  if (aviso != nullptr) *aviso = lookup::frmPesquisa::AvisoDaSelecao(*produtos, *linhas);
  return linhas;
}

bool frmCaixaOperar::PesquisarProduto(const std::string& nome, const std::string& codigoDeBarras,
                                      double codigoInterno) {
  bool encontrado = false;
  Procedimento(", frmCaixaOperar, PesquisarProduto, Ponto: ", [&](Ponto& ponto) {
    std::string aviso;
    const base::RecordSetPtr linhas =
        SelecionarProduto(nome, codigoDeBarras, codigoInterno, &aviso);
    if (!linhas) return;
    ponto = 2;
    if (linhas->RecordCount() == 1) {
      encontrado = ReceberProduto(*linhas);
      return;
    }
    ponto = 3;
    lookup::frmPesquisaDeProdutos lista;
    if (EscolherDaLista(lista, linhas, aviso)) encontrado = ReceberProduto(*lista.Produto());
    lista.Unload();
  });
  return encontrado;
}

bool frmCaixaOperar::ReceberProduto(const base::RecordSet& produto) {
  const frame::SupressaoDePesquisa supressao;
  const auto texto = [&](std::string_view campo) { return base::ToText(produto.Fields(campo)); };
  zvfNomeDoProduto.Status = ZVFind::kFound;
  zvfCodigoDeBarrasDoProduto.Status = ZVFind::kFound;
  zvfCodigoInternoDoProduto.Status = ZVFind::kFound;
  zvfCodigoInternoDoProduto.Text = texto("CodigoInterno");
  zvfCodigoDeBarrasDoProduto.Text = texto("CodigoDeBarras");
  zvfNomeDoProduto.Text = texto("Nome");
  zvfNomeDoProduto.Tag = texto("ValorDeCusto");
  UnidadeDeVendaDoProduto = texto("UnidadeDeVenda");
  HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
  zvnumQuantidade.Text = "1,000";
  zvnumValorUnitario.Text = frame::TextoDeValor(produto.Fields("ValorDeVenda"));
  PercentualDeComissaoDoProduto = base::ToCurrency(produto.Fields("PercentualDeComissao"));
  return true;
}

bool frmCaixaOperar::PesquisarServico(std::int16_t tipo, const std::string& nome, double codigo) {
  bool encontrado = false;
  Procedimento(", frmCaixaOperar, PesquisarServico, Ponto: ", [&](Ponto& ponto) {
    frame::Espera espera(painelDeMensagem_);
    auto catalogo = servicos::CriarServico<servicos::ZOVA_N_Servicos::clsServicos>();
    std::string nomeProcurado = nome;
    double codigoProcurado = codigo;
    ponto = 2;
    const bool falhou = catalogo->Selecionar(2, 0, 1, "", tipo, nomeProcurado, codigoProcurado);
    espera.Ocultar();
    if (falhou) {
      frame::ExibirErroDoServico(*catalogo);
      return;
    }
    if (SemCliente()) return;
    ponto = 3;
    const base::RecordSetPtr linhas = catalogo->ResultadoDaSelecaoEmRecordSet();
    const std::string fim =
        "' informado e com o tipo de serviço '" + zvcmbTiposDeServicos.Text() + "'.";
    if (linhas->RecordCount() == 0) {
      NadaEncontrado(nome.empty()
                         ? "Nenhum produto encontrado com o código '" + base::ToText(codigo) + fim
                         : "Nenhum serviço encontrado com o nome '" + nome + fim);
      return;
    }
    ponto = 4;
    if (linhas->RecordCount() == 1) {
      linhas->MoveFirst();
      encontrado = ReceberServico(*linhas);
      return;
    }
    ponto = 5;
    lookup::frmPesquisaDeServicos lista;
    const std::string aviso = lookup::frmPesquisa::AvisoDaSelecao(*catalogo, *linhas);
    lista.CopiarTiposDeServicos(zvcmbTiposDeServicos);
    if (EscolherDaLista(lista, linhas, aviso)) encontrado = ReceberServico(*lista.Escolhido());
    lista.Unload();
  });
  return encontrado;
}

bool frmCaixaOperar::ReceberServico(const base::RecordSet& servico) {
  {
    frame::SupressaoDePesquisa supressao;
    zvfNomeDoServico.Status = ZVFind::kFound;
    zvfCodigoDoServico.Status = ZVFind::kFound;
    zvfCodigoDoServico.Text = base::ToText(servico.Fields("Codigo"));
    zvfNomeDoServico.Text = base::ToText(servico.Fields("Nome"));
    zvfNomeDoServico.Tag = base::ToText(servico.Fields("Custo"));
    HabilitarDesabilitarCamposDeValoresDeReferenciaDoItemDeVenda(true);
    zvnumQuantidade.Text = "1";
    zvnumValorUnitario.Text = frame::TextoDeValor(servico.Fields("ValorDeVenda"));
    const std::int32_t indice =
        zvcmbTiposDeServicos.IndexOfData(base::ToInt32(servico.Fields("NumeroDoTipoDeServico")));
    supressao.Repetir();
    if (indice != -1) zvcmbTiposDeServicos.ListIndex = indice;
  }
  RecuperaDescontoDoCliente();
  if (zvcmbAnimal.Enabled()) {
    zvcmbAnimal.SetFocus();
  } else {
    zvcmbComissionado.SetFocus();
  }
  return true;
}

bool frmCaixaOperar::ProcurarProdutoDosCampos() {
  return PesquisarProduto(base::Trim(zvfNomeDoProduto.Text()),
                          base::Trim(zvfCodigoDeBarrasDoProduto.Text()),
                          CodigoDe(zvfCodigoInternoDoProduto));
}

bool frmCaixaOperar::ProcurarServicoDosCampos() {
  const std::int32_t tipo = zvcmbTiposDeServicos.ItemData(zvcmbTiposDeServicos.ListIndex());
  return PesquisarServico(base::ToInt16(tipo), base::Trim(zvfNomeDoServico.Text()),
                          CodigoDe(zvfCodigoDoServico));
}

void frmCaixaOperar::AbrirCamposDoProdutoEncontrado() {
  if (!PreencherComboboxComissionados(kProduto)) return;
  HabilitarDesabilitarCampos(true);
  optServico.Enabled = zvcmbAnimal.ListCount() > 0;
  zvcmbComissionado.SetFocus();
}

}  // namespace sale
