#include "tools/roteiro/ContractMembers.h"

#include <algorithm>

namespace roteiro::contract {
namespace {

enum class Family { kPlain, kBusiness, kScreen };

/// A class of the contract and its members, parted by blanks.
struct Class {
  std::string_view name;
  Family family;
  std::string_view members;
};

constexpr std::string_view MembersOf(Family family) {
  switch (family) {
    case Family::kBusiness:
      return "DadosDoUsuario NumeroDoErro DescricaoDoErro LocalDoErro DescricaoDaFalha "
             "ResultadoDaSelecaoEmRecordSet";
    case Family::kScreen:
      return "DadosDoUsuario NomeDaAplicacao";
    case Family::kPlain:
      break;
  }
  return "";
}

constexpr Class kClasses[] = {
    {"ZOVA_A_ClientAnim.clsClientAnim", Family::kScreen,
     "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente "
     "AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio"},
    {"ZOVA_A_ClientHist.clsHistDeVendas", Family::kScreen,
     "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente "
     "DataInicialDoHistorico AbrirFichaExibicao"},
    {"ZOVA_A_EfeitosDeTela.clsFundoEscuro", Family::kPlain, "Aplicar Remover"},
    {"ZOVA_A_MsgErro.clsMensagem", Family::kPlain, "Exibir"},
    {"ZOVA_A_Orcamentos.clsOrcamentos", Family::kScreen,
     "CodigoDoCliente ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente CodigoDoAnimal "
     "NomeDoAnimal AbrirFicha"},
    {"ZOVA_A_Produtos.clsProdutos", Family::kScreen,
     "CodigoInterno Nome AbrirFichaDeCadastroDeNCM"},
    {"ZOVA_A_RelFin.clsRelFin", Family::kScreen, "ImprimirNotaPromissoria"},
    {"ZOVA_N_Administrativo.clsAdministrativo", Family::kBusiness,
     "NomeDoComputador SelecionarClientesComTransacoesBloqueadas BloquearCliente "
     "DesbloquearCliente"},
    {"ZOVA_N_Caixa.clsCaixa", Family::kBusiness,
     "NumeroDoCaixa LocalDeAtendimentoDoCaixa Operador Situacao Observacao GradeDeItensDaVenda "
     "Descricao MOEDA ValorDoLancamento ApelidoOuNomeFantasiaDoCliente "
     "NomeOuRazaoSocialDoCliente CodigoDoCliente NumeroDaFichaClinica ValorBruto "
     "ValorTotalDeDescontos ValorLiquido Custo Comissao LucroEmValor LucroEmPercentual "
     "CreditoAnteriorDoCliente CreditoParaOCliente Troco GradeDePagamentosEfetuados ChaveSAT "
     "RegistrarAbertura RegistrarFechamento RegistrarEntrada RegistrarSaida RegistrarPagamento "
     "AdicionarCreditoParaCliente EstornarCreditoDoCliente CancelarVenda DesfazerCancelamento "
     "PesquisarVendaDoDia PesquisarItensDaVenda SelecionarItensDeVenda NumeroDaVenda"},
    {"ZOVA_N_Caixa.clsCreditosDoCliente", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_Caixa.clsDebitosDoCliente", Family::kBusiness,
     "Selecionar NumeroDoCaixa LocalDeAtendimentoDoCaixa CodigoDoCliente "
     "ApelidoOuNomeFantasiaDoCliente NomeOuRazaoSocialDoCliente CreditoAtualDoCliente "
     "ValorRecebido DescontoAbatimento ValorTotalDePrevisaoDeRecebimento "
     "GerarInformacoesDePagamento GerarInformacoesDeReparcelamento GradeDeDebitosDoCliente "
     "GradeDePagamentos GradeDeReparcelamento RegistrarPagamentoEOuReparcelamento"},
    {"ZOVA_N_Caixa.clsDebitosVencCliente", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_Caixa.clsServicosEProdutos", Family::kBusiness,
     "ServicosEfetuadosEProdutosReservados SelecionarServicosEfetuados "
     "SelecionarProdutosReservados"},
    {"ZOVA_N_Caixas.clsCaixas", Family::kBusiness, "SelecionarParaComboBox"},
    {"ZOVA_N_ClientAnim.clsAnimais", Family::kBusiness, "SelecionarParaComboBoxFiltradoPorCliente"},
    {"ZOVA_N_ClientAnim.clsClientes", Family::kBusiness,
     "Selecionar RetornarInformacoesDoLimiteDeCredito"},
    {"ZOVA_N_Empresa.clsEmpresa", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_Funcionarios.clsFuncionarios", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_Login.clsLogin", Family::kBusiness, "NomeDeUsuario SenhaDoUsuario Autenticar"},
    {"ZOVA_N_OSParaBD.clsOSExportarRegistros", Family::kBusiness,
     "ExportarDadosCFeSATParaArquivo ExportarDadosParaCancelarCFeSAT "
     "NomeCompleDoArquivoDeEnvioComDadosCFeSAT NomeCompleDoArquivoDeRetornoComDadosCFeSAT"},
    {"ZOVA_N_Produtos.clsProdutos", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_RelFin.clsRelFin", Family::kBusiness,
     "SelecionarResumoDeCaixas SelecionarLancamentosDeCaixas"},
    {"ZOVA_N_SO.clsObterVersaoDoSO", Family::kPlain, "ObterversaoDoSO"},
    {"ZOVA_N_Servicos.clsServicos", Family::kBusiness, "Selecionar"},
    {"ZOVA_N_TipoDeServ.clsTiposDeServ", Family::kBusiness, "SelecionarParaComboBox"},
};

const Class* Find(std::string_view name) {
  const auto* const found = std::ranges::find(kClasses, name, &Class::name);
  return found == std::end(kClasses) ? nullptr : found;
}

bool HasWord(std::string_view words, std::string_view word) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == word) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

}  // namespace

bool IsClass(std::string_view className) {
  return Find(className) != nullptr;
}

bool IsMember(std::string_view className, std::string_view member) {
  const Class* const found = Find(className);
  return found != nullptr &&
         (HasWord(found->members, member) || HasWord(MembersOf(found->family), member));
}

}  // namespace roteiro::contract
