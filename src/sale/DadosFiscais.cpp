#include <functional>
#include <optional>

#include "base/Text.h"
#include "frame/Consultas.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_A_ClientAnim.clsClientAnim.h"
#include "frame/servicos/ZOVA_A_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "lookup/frmPesquisa.h"
#include "sale/frmCaixaOperar.h"

// A fiscal coupon needs the municipality code of the customer and the fiscal classification of each
// product: what is missing is asked for before payment.
namespace sale {

using frame::Ponto;
using frame::Procedimento;
using frame::valores;

namespace {

constexpr std::int16_t kFalha = 1;
constexpr std::int16_t kSemCadastrar = 99;

void VendaNaoEfetuada(std::string_view motivo) {
  frame::Parar(std::string(motivo) + "\nVenda não efetuada.");
}

}  // namespace

frmCaixaOperar::DadosFiscais frmCaixaOperar::CompletarDadosFiscais() {
  std::optional<frame::Espera> espera;
  for (std::int32_t linha = 1; linha <= msfgGrade.Rows() - 1; ++linha) {
    if (TipoDeLancamentoDa(msfgGrade, linha) != kProduto) continue;
    if (!espera) espera.emplace(painelDeMensagem_);
    const DadosFiscais dados = CompletarDadosFiscaisDaLinha(linha, *espera);
    if (dados != DadosFiscais::kCompletos) return dados;
  }
  return DadosFiscais::kCompletos;
}

frmCaixaOperar::DadosFiscais frmCaixaOperar::CompletarDadosFiscaisDaLinha(std::int32_t linha,
                                                                          frame::Espera& espera) {
  const auto cadastrar = [&](const std::function<std::int16_t()>& abrir, std::string_view aoFalhar,
                             std::string_view aoSair) {
    espera.Ocultar();
    frame::FundoEscuro fundo;
    const std::int16_t resultado = abrir();
    fundo.Remover();
    if (resultado == kFalha) {
      VendaNaoEfetuada(aoFalhar);
      return DadosFiscais::kFalhaNaExportacao;
    }
    if (resultado == kSemCadastrar) {
      frame::Informar(aoSair);
      return DadosFiscais::kFaltam;
    }
    return DadosFiscais::kCompletos;
  };
  espera.Mostrar();
  DadosFiscais dados = DadosFiscais::kCompletos;
  if (!ValidarDadosDoCliente(caixaDoCliente_.CodigoDoCliente())) {
    dados = cadastrar(
        [this] { return CadastrarCodigoIBGEDoMunicipioDoCliente_Click(); },
        "Houve erro ao exportar o cliente.",
        "Para emitir o documento fiscal é necessário cadastrar o código IBGE do município do "
        "cliente.");
    if (dados != DadosFiscais::kCompletos) return dados;
  }
  espera.Mostrar();
  const double codigo = base::Val(msfgGrade.TextMatrix(linha, kCodigo));
  if (!ValidarDadosDoProduto(base::Trim(zvfNomeDoProduto.Text()),
                             base::Trim(zvfCodigoDeBarrasDoProduto.Text()), codigo)) {
    dados = cadastrar(
        [&] { return CadastrarNCMDoProduto_Click(codigo, msfgGrade.TextMatrix(linha, kNome)); },
        "Houve erro ao exportar o produto.",
        "Para emitir o documento fiscal é necessário cadastrar a NCM do produto.");
  }
  return dados;
}

bool frmCaixaOperar::ValidarDadosDoCliente(double codigo) {
  bool completos = false;
  Procedimento(frame::etiquetas::kValidarDadosDoCliente, [&](Ponto& ponto) {
    auto clientes = frame::CriarServicoComSessao<servicos::ZOVA_N_ClientAnim::clsClientes>();
    ponto = 2;
    if (frame::consultas::Cliente(*clientes, codigo) != servicos::kSucesso) return;
    const base::RecordSetPtr encontrados = clientes->ResultadoDaSelecaoEmRecordSet();
    completos = true;
    if (encontrados->RecordCount() != 1) return;
    encontrados->MoveFirst();
    completos = !base::ToText(encontrados->Fields("CodigoIBGEDoMunicipio")).empty();
  });
  return completos;
}

bool frmCaixaOperar::ValidarDadosDoProduto(const std::string& nome,
                                           const std::string& codigoDeBarras,
                                           double codigoInterno) {
  bool completos = false;
  Procedimento(*this, "ValidarDadosDoProduto", [&](Ponto& ponto) {
    const base::RecordSetPtr produtos =
        SelecionarProdutos(nome, codigoDeBarras, codigoInterno).registros;
    if (!produtos) return;
    ponto = 2;
    completos = produtos->RecordCount() != 1 || !base::ToText(produtos->Fields("NCM")).empty();
  });
  return completos;
}

std::int16_t frmCaixaOperar::CadastrarCodigoIBGEDoMunicipioDoCliente_Click() {
  std::int16_t resultado = kFalha;
  Procedimento(*this, "CadastrarCodigoIBGEDoMunicipioDoCliente_Click", [&](Ponto&) {
    auto cadastro = servicos::CriarServico<servicos::ZOVA_A_ClientAnim::clsClientAnim>();
    cadastro->CodigoDoCliente(caixaDoCliente_.CodigoDoCliente());
    cadastro->ApelidoOuNomeFantasiaDoCliente(zvfApelidoOuNomeFantasiaDoCliente.Text());
    cadastro->NomeOuRazaoSocialDoCliente(zvfNomeOuRazaoSocialDoCliente.Text());
    cadastro->NomeDaAplicacao(valores().NomeDaAplicacao);
    cadastro->DadosDoUsuario(valores().DadosDoUsuario);
    resultado = cadastro->AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio();
  });
  return resultado;
}

std::int16_t frmCaixaOperar::CadastrarNCMDoProduto_Click(double codigoInterno,
                                                         const std::string& nome) {
  std::int16_t resultado = kFalha;
  Procedimento(*this, "CadastrarNCMDoProduto_Click", [&](Ponto&) {
    auto cadastro = servicos::CriarServico<servicos::ZOVA_A_Produtos::clsProdutos>();
    cadastro->CodigoInterno(codigoInterno);
    cadastro->Nome(nome);
    cadastro->NomeDaAplicacao(valores().NomeDaAplicacao);
    cadastro->DadosDoUsuario(valores().DadosDoUsuario);
    resultado = cadastro->AbrirFichaDeCadastroDeNCM();
  });
  return resultado;
}

}  // namespace sale
