#include "tools/roteiro/StandIn.h"

namespace roteiro {
namespace {

using base::Currency;
using std::int16_t;
using std::int32_t;
using std::string_view;
using Grade = const base::GradeLida*;

/// Each class of the contract has its own.
template <class Contract>
class StandInOf;

template <>
class StandInOf<servicos::ZOVA_N_Administrativo::clsAdministrativo> final
    : public BusinessStandIn<servicos::ZOVA_N_Administrativo::clsAdministrativo> {
 public:
  using BusinessStandIn::BusinessStandIn;

  void NomeDoComputador(string_view v) override { Set(__func__, v); }
  int16_t SelecionarClientesComTransacoesBloqueadas(int32_t a, int16_t b, double& c,
                                                    int16_t d) override {
    return Call(__func__, a, b, c, d);
  }
  int16_t BloquearCliente(int16_t a, double& b, int16_t c) override {
    return Call(__func__, a, b, c);
  }
  int16_t DesbloquearCliente(int16_t a, double& b, int16_t c) override {
    return Call(__func__, a, b, c);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixa::clsCaixa> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixa::clsCaixa> {
 public:
  using BusinessStandIn::BusinessStandIn;

  void NumeroDoCaixa(int32_t v) override { Set(__func__, v); }
  void LocalDeAtendimentoDoCaixa(string_view v) override { Set(__func__, v); }
  void Operador(string_view v) override { Set(__func__, v); }
  void Situacao(string_view v) override { Set(__func__, v); }
  void Observacao(string_view v) override { Set(__func__, v); }
  void GradeDeItensDaVenda(Grade v) override { Set(__func__, v); }
  void Descricao(string_view v) override { Set(__func__, v); }
  void MOEDA(int16_t v) override { Set(__func__, v); }
  void ValorDoLancamento(string_view v) override { Set(__func__, v); }
  void ValorDoLancamento(double v) override { Set(__func__, v); }
  void ApelidoOuNomeFantasiaDoCliente(string_view v) override { Set(__func__, v); }
  void NomeOuRazaoSocialDoCliente(string_view v) override { Set(__func__, v); }
  void CodigoDoCliente(string_view v) override { Set(__func__, v); }
  void CodigoDoCliente(double v) override { Set(__func__, v); }
  void NumeroDaFichaClinica(int32_t v) override { Set(__func__, v); }
  void ValorBruto(Currency v) override { Set(__func__, v); }
  void ValorTotalDeDescontos(Currency v) override { Set(__func__, v); }
  void ValorLiquido(Currency v) override { Set(__func__, v); }
  void Custo(Currency v) override { Set(__func__, v); }
  void Comissao(Currency v) override { Set(__func__, v); }
  void LucroEmValor(Currency v) override { Set(__func__, v); }
  void LucroEmPercentual(Currency v) override { Set(__func__, v); }
  void CreditoAnteriorDoCliente(Currency v) override { Set(__func__, v); }
  void CreditoAnteriorDoCliente(string_view v) override { Set(__func__, v); }
  void CreditoParaOCliente(Currency v) override { Set(__func__, v); }
  void Troco(Currency v) override { Set(__func__, v); }
  void GradeDePagamentosEfetuados(Grade v) override { Set(__func__, v); }
  void ChaveSAT(string_view v) override { Set(__func__, v); }
  int16_t RegistrarAbertura() override { return Call(__func__); }
  int16_t RegistrarFechamento() override { return Call(__func__); }
  int16_t RegistrarEntrada() override { return Call(__func__); }
  int16_t RegistrarSaida() override { return Call(__func__); }
  int16_t RegistrarPagamento() override { return Call(__func__); }
  int16_t AdicionarCreditoParaCliente() override { return Call(__func__); }
  int16_t EstornarCreditoDoCliente() override { return Call(__func__); }
  int16_t CancelarVenda(double a, string_view b) override { return Call(__func__, a, b); }
  int16_t DesfazerCancelamento(double a, string_view b) override { return Call(__func__, a, b); }
  int16_t PesquisarVendaDoDia(string_view a, int32_t& b, int32_t c, int16_t d) override {
    return Call(__func__, a, b, c, d);
  }
  int16_t PesquisarItensDaVenda(double a) override { return Call(__func__, a); }
  int16_t SelecionarItensDeVenda(string_view a) override { return Call(__func__, a); }
  int32_t NumeroDaVenda() override { return Get(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixa::clsCreditosDoCliente> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixa::clsCreditosDoCliente> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t Selecionar(string_view a) override { return Call(__func__, a); }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixa::clsDebitosDoCliente> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixa::clsDebitosDoCliente> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t Selecionar(int16_t a, string_view b) override { return Call(__func__, a, b); }
  void NumeroDoCaixa(int32_t v) override { Set(__func__, v); }
  void LocalDeAtendimentoDoCaixa(string_view v) override { Set(__func__, v); }
  void CodigoDoCliente(int32_t v) override { Set(__func__, v); }
  void ApelidoOuNomeFantasiaDoCliente(string_view v) override { Set(__func__, v); }
  void NomeOuRazaoSocialDoCliente(string_view v) override { Set(__func__, v); }
  void CreditoAtualDoCliente(string_view v) override { Set(__func__, v); }
  void ValorRecebido(string_view v) override { Set(__func__, v); }
  void DescontoAbatimento(double v) override { Set(__func__, v); }
  void ValorTotalDePrevisaoDeRecebimento(Currency v) override { Set(__func__, v); }
  void GerarInformacoesDePagamento(bool v) override { Set(__func__, v); }
  void GerarInformacoesDeReparcelamento(bool v) override { Set(__func__, v); }
  void GradeDeDebitosDoCliente(Grade v) override { Set(__func__, v); }
  void GradeDePagamentos(Grade v) override { Set(__func__, v); }
  void GradeDeReparcelamento(Grade v) override { Set(__func__, v); }
  int16_t RegistrarPagamentoEOuReparcelamento() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixa::clsDebitosVencCliente> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixa::clsDebitosVencCliente> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t Selecionar(int16_t a, string_view b) override { return Call(__func__, a, b); }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixa::clsServicosEProdutos> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixa::clsServicosEProdutos> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t ServicosEfetuadosEProdutosReservados(double& a) override { return Call(__func__, a); }
  int16_t SelecionarServicosEfetuados(int16_t a, int16_t b, string_view c) override {
    return Call(__func__, a, b, c);
  }
  int16_t SelecionarProdutosReservados(int16_t a, int16_t b, string_view c) override {
    return Call(__func__, a, b, c);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_Caixas::clsCaixas> final
    : public BusinessStandIn<servicos::ZOVA_N_Caixas::clsCaixas> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t SelecionarParaComboBox() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_ClientAnim::clsAnimais> final
    : public BusinessStandIn<servicos::ZOVA_N_ClientAnim::clsAnimais> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t SelecionarParaComboBoxFiltradoPorCliente(double& a, int16_t b) override {
    return Call(__func__, a, b);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_ClientAnim::clsClientes> final
    : public BusinessStandIn<servicos::ZOVA_N_ClientAnim::clsClientes> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t Selecionar(int32_t a, int16_t b, int32_t c, string_view d, std::string& e, double& f,
                     string_view g, string_view h, string_view i, double j,
                     string_view k) override {
    return Call(__func__, a, b, c, d, e, f, g, h, i, j, k);
  }
  int16_t RetornarInformacoesDoLimiteDeCredito(double& a, Currency& b, Currency& c,
                                               Currency& d) override {
    return Call(__func__, a, b, c, d);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_Empresa::clsEmpresa> final
    : public BusinessStandIn<servicos::ZOVA_N_Empresa::clsEmpresa> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t Selecionar(int32_t a, int32_t b) override { return Call(__func__, a, b); }
};

template <>
class StandInOf<servicos::ZOVA_N_Funcionarios::clsFuncionarios> final
    : public BusinessStandIn<servicos::ZOVA_N_Funcionarios::clsFuncionarios> {
 public:
  using BusinessStandIn::BusinessStandIn;

  bool Selecionar(int32_t a, int16_t b, int32_t c, string_view d, string_view e,
                  double& f) override {
    return Call(__func__, a, b, c, d, e, f);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_Login::clsLogin> final
    : public BusinessStandIn<servicos::ZOVA_N_Login::clsLogin> {
 public:
  using BusinessStandIn::BusinessStandIn;

  void NomeDeUsuario(string_view v) override { Set(__func__, v); }
  void SenhaDoUsuario(string_view v) override { Set(__func__, v); }
  int16_t Autenticar() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros> final
    : public BusinessStandIn<servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t ExportarDadosCFeSATParaArquivo(string_view a, string_view b, string_view c) override {
    return Call(__func__, a, b, c);
  }
  int16_t ExportarDadosParaCancelarCFeSAT(string_view a) override { return Call(__func__, a); }
  std::string NomeCompleDoArquivoDeEnvioComDadosCFeSAT() override { return Get(__func__); }
  std::string NomeCompleDoArquivoDeRetornoComDadosCFeSAT() override { return Get(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_Produtos::clsProdutos> final
    : public BusinessStandIn<servicos::ZOVA_N_Produtos::clsProdutos> {
 public:
  using BusinessStandIn::BusinessStandIn;

  bool Selecionar(int32_t a, int16_t b, int32_t c, string_view d, std::string& e, std::string& f,
                  double& g) override {
    return Call(__func__, a, b, c, d, e, f, g);
  }
  bool Selecionar(int32_t a, int16_t b, int32_t c, string_view d, string_view e) override {
    return Call(__func__, a, b, c, d, e);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_RelFin::clsRelFin> final
    : public BusinessStandIn<servicos::ZOVA_N_RelFin::clsRelFin> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t SelecionarResumoDeCaixas(std::string& a, std::string& b) override {
    return Call(__func__, a, b);
  }
  int16_t SelecionarLancamentosDeCaixas(std::string& a, std::string& b) override {
    return Call(__func__, a, b);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_SO::clsObterVersaoDoSO> final
    : public StandInFor<servicos::ZOVA_N_SO::clsObterVersaoDoSO> {
 public:
  using StandInFor::StandInFor;

  std::string ObterversaoDoSO() override { return Call(__func__); }
};

template <>
class StandInOf<servicos::ZOVA_N_Servicos::clsServicos> final
    : public BusinessStandIn<servicos::ZOVA_N_Servicos::clsServicos> {
 public:
  using BusinessStandIn::BusinessStandIn;

  bool Selecionar(int32_t a, int16_t b, int32_t c, string_view d, int16_t& e, std::string& f,
                  double& g) override {
    return Call(__func__, a, b, c, d, e, f, g);
  }
  bool Selecionar(int32_t a, int16_t b, int32_t c, string_view d, int32_t e) override {
    return Call(__func__, a, b, c, d, e);
  }
};

template <>
class StandInOf<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ> final
    : public BusinessStandIn<servicos::ZOVA_N_TipoDeServ::clsTiposDeServ> {
 public:
  using BusinessStandIn::BusinessStandIn;

  int16_t SelecionarParaComboBox(double& a) override { return Call(__func__, a); }
};

}  // namespace

void RegisterBusinessStandIns(StandIns& all) {
  RegisterEach<StandInOf>(all, servicos::ServicosDeNegocio());
}

}  // namespace roteiro
