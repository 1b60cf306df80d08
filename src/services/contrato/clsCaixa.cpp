#include <cmath>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/banco/Senhas.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/Cupons.h"
#include "services/venda/Movimento.h"
#include "services/venda/RegistroDeVenda.h"
#include "services/venda/Reversao.h"
#include "services/venda/VendaDasGrades.h"
#include "services/venda/VendasDoDia.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Caixa::clsCaixa;

constexpr const char* kValorDoMovimento = "o valor";

using enum Field::Kind;

/// A line of a receipt. Discounts are positive: they are what the customer saved. The day is that
/// on which the service was done or the product set aside; for what was rung up at the counter, it
/// is the day of the sale.
constexpr Field kItensDoComprovante[] = {
    {"DataDoServicoEfetuadoOuProdutoReservado", kMoment,
     "coalesce(CAST(p.data_de_lancamento AS text), substr(CAST(v.data_e_hora AS text), 1, 10))"},
    {"NomeDoAnimal", kText, "i.nome_do_animal"},
    {"NomeDoServicoOuProduto", kText, "i.nome_do_item"},
    {"Quantidade", kMoney, "i.quantidade"},
    {"UnidadeDeVenda", kText, "i.unidade"},
    {"ValorUnitario", kMoney, "i.valor_unitario"},
    {"ValorDeDesconto", kMoney, "i.desconto_em_valor"},
    {"ValorTotal", kMoney, "i.valor_total"},
};

/// Read when the operation runs, so that what is no number is refused there.
std::string TextoDe(double numero) {
  return std::isfinite(numero) ? base::ToText(numero) : "?";
}

class clsCaixa : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  void NumeroDoCaixa(std::int32_t numero) override {
    movimento_.numeroDoCaixa = numero;
    venda_.numeroDoCaixa = numero;
  }
  void LocalDeAtendimentoDoCaixa(std::string_view) override {}  // The register's row has it.
  void Operador(std::string_view operador) override {
    movimento_.operador = operador;
    venda_.operador = operador;
  }
  void Situacao(std::string_view situacao) override { movimento_.situacao = situacao; }
  void Observacao(std::string_view observacao) override {
    movimento_.observacao = observacao;
    venda_.observacao = observacao;
  }
  void GradeDeItensDaVenda(const base::GradeLida* grade) override { itens_ = grade; }

  void Descricao(std::string_view descricao) override { movimento_.descricao = descricao; }
  void MOEDA(std::int16_t moeda) override { movimento_.moeda = moeda; }
  void ValorDoLancamento(std::string_view valor) override { valor_ = valor; }
  void ValorDoLancamento(double valor) override { valor_ = TextoDe(valor); }

  void ApelidoOuNomeFantasiaDoCliente(std::string_view apelido) override {
    venda_.apelidoDoCliente = apelido;
  }
  void NomeOuRazaoSocialDoCliente(std::string_view nome) override { venda_.nomeDoCliente = nome; }
  void CodigoDoCliente(std::string_view codigo) override { cliente_ = codigo; }
  void CodigoDoCliente(double codigo) override { cliente_ = TextoDe(codigo); }
  void NumeroDaFichaClinica(std::int32_t numero) override { venda_.numeroDaFichaClinica = numero; }
  void ValorBruto(base::Currency valor) override { venda_.valorBruto = valor; }
  void ValorTotalDeDescontos(base::Currency valor) override { venda_.totalDeDescontos = valor; }
  void ValorLiquido(base::Currency valor) override { venda_.valorLiquido = valor; }
  void Custo(base::Currency valor) override { venda_.custo = valor; }
  void Comissao(base::Currency valor) override { venda_.comissao = valor; }
  void LucroEmValor(base::Currency valor) override { venda_.lucroEmValor = valor; }
  void LucroEmPercentual(base::Currency valor) override { venda_.lucroEmPercentual = valor; }
  // What the screen took the credit to be is kept with the sale; the database's own counts.
  void CreditoAnteriorDoCliente(base::Currency valor) override { venda_.creditoAnterior = valor; }
  using Contrato::CreditoAnteriorDoCliente;
  void CreditoParaOCliente(base::Currency valor) override { venda_.creditoMantido = valor; }
  void Troco(base::Currency valor) override { troco_ = valor; }
  void GradeDePagamentosEfetuados(const base::GradeLida* grade) override { pagamentos_ = grade; }
  void ChaveSAT(std::string_view chave) override { venda_.chaveSat = chave; }

  std::int16_t RegistrarAbertura() override {
    return Numerado("RegistrarAbertura", [this] {
      Mover(servicos::kAbertura, "Abertura", Entrando(Sinal::kPodeSerZero));
    });
  }
  std::int16_t RegistrarFechamento() override {
    return Numerado("RegistrarFechamento", [this] {
      const base::Currency valor = LerValor(valor_, kValorDoMovimento);
      if (valor > base::Currency()) {
        throw Refusal{.sentence =
                          "O valor retirado no fechamento deve ser negativo ou zero. "
                          "Informe o valor de novo."};
      }
      Mover(servicos::kFechamento, "Fechamento", valor);
    });
  }
  std::int16_t RegistrarEntrada() override {
    return Numerado("RegistrarEntrada",
                    [this] { Mover(servicos::kEntrada, "Entrada", Entrando(Sinal::kPositivo)); });
  }
  std::int16_t RegistrarSaida() override {
    return Numerado("RegistrarSaida",
                    [this] { Mover(servicos::kSaida, "Saída", -Entrando(Sinal::kPositivo)); });
  }

  std::int16_t RegistrarPagamento() override {
    return Numerado("RegistrarPagamento", [this] {
      numeroDaVenda_ = 0;
      GuardandoCupom(banco(), venda_, [this] { Registrar(venda_); });
    });
  }
  std::int32_t NumeroDaVenda() override { return numeroDaVenda_; }

  std::int16_t CancelarVenda(double numeroDaVenda, std::string_view motivo) override {
    return Numerado("CancelarVenda", [&] { Reverter(false, numeroDaVenda, motivo); });
  }
  std::int16_t DesfazerCancelamento(double numeroDaVenda, std::string_view motivo) override {
    return Numerado("DesfazerCancelamento", [&] { Reverter(true, numeroDaVenda, motivo); });
  }

  std::int16_t PesquisarVendaDoDia(std::string_view situacao, std::int32_t& numeroDoCaixa,
                                   std::int32_t, std::int16_t) override {
    return Numerado("PesquisarVendaDoDia", [&] {
      // Whoever lists sales begins anew: nobody has consented to anything yet.
      banco().EsquecerConsentimento();
      outcome_.rows = VendasDoDia(sessao(), situacao, numeroDoCaixa, banco().Agora());
    });
  }
  std::int16_t PesquisarItensDaVenda(double numeroDaVenda) override {
    return Numerado("PesquisarItensDaVenda", [&] {
      outcome_.rows = ItensDeUmaVenda(sessao(), CodeIn(numeroDaVenda).value_or(0));
    });
  }

  std::int16_t SelecionarItensDeVenda(std::string_view condicao) override {
    return Numerado("SelecionarItensDeVenda", [&] {
      static const Statement lines("SELECT " + ColumnsOf(kItensDoComprovante) +
                                   " FROM itens_de_venda i"
                                   " JOIN vendas v ON v.numero = i.numero_da_venda"
                                   " LEFT JOIN pre_vendas p ON p.numero = i.numero_de_lancamento"
                                   " WHERE i.numero_da_venda = $1 ORDER BY i.item");
      const auto numero = CodeInCondition(condicao, "ItensDeVendas.NumeroDaVenda");
      outcome_.rows = SelectRows(sessao(), kItensDoComprovante, lines, {numero}).rows;
    });
  }

 private:
  enum class Sinal { kPodeSerZero, kPositivo };

  bool EAdministrador() const {
    return dados() != nullptr && base::ToBool(dados()->Field("Administrador"));
  }

  base::Currency Entrando(Sinal sinal) const {
    const base::Currency valor = LerValor(valor_, kValorDoMovimento);
    if (valor < base::Currency() || (sinal == Sinal::kPositivo && valor.IsZero())) {
      throw Refusal{.sentence =
                        "O valor informado deve ser maior que 0,00 (zero). Informe o "
                        "valor de novo."};
    }
    return valor;
  }

  void Registrar(Venda venda) {
    venda.codigoDoCliente = LerCodigoDoCliente(cliente_);
    venda.itens = LerItens(itens_);
    venda.recebimentos = LerRecebimentos(pagamentos_);
    ExigirCentavos(venda);
    FecharContas(venda, troco_);
    venda.alemDoLimite = !venda.RecebidoEm(pagamento::kACredito).IsZero() && EAdministrador();
    venda.quando = banco().Agora();
    venda.operacao = NumeroUnico();
    venda.cupom = CupomDaVenda(banco(), venda);
    numeroDaVenda_ = RegistrarVenda(banco(), venda);
  }

  void Reverter(bool desfaz, double numero, std::string_view motivo) {
    constexpr std::string_view kDireito = "PermissaoDoModuloCaixaCancelarVendas";
    if (base::Trim(motivo).empty()) {
      throw Refusal{.sentence = "O motivo está em branco. Informe-o e confirme de novo."};
    }
    ReverterVenda(banco(), {.desfaz = desfaz,
                            .numeroDaVenda = CodeIn(numero).value_or(0),
                            .numeroDoCaixa = movimento_.numeroDoCaixa,
                            .quando = banco().Agora(),
                            .operacao = NumeroUnico(),
                            .operador = base::ToText(DaSessao("NomeDeUsuario")),
                            .motivo = base::Trim(motivo),
                            .consentidoPor = QuemConsentiu(kDireito)});
    banco().EsquecerConsentimento();
  }

  /// A field of the session, null where there is none.
  base::Value DaSessao(std::string_view campo) const {
    return dados() == nullptr ? base::Value() : dados()->Field(campo);
  }

  /// Who lets the user do what their own rights do not; empty for one who has the right. Throws
  /// Refusal when nobody with the right has been asked.
  std::string QuemConsentiu(std::string_view direito) {
    if (base::ToBool(DaSessao(direito))) return {};
    const base::Record* supervisor = banco().Consentimento();
    if (supervisor != nullptr && base::ToBool(supervisor->Field(direito))) {
      return base::ToText(supervisor->Field("NomeDeUsuario"));
    }
    throw Refusal{.sentence =
                      "O usuário não tem permissão para isto, e nenhum supervisor autorizou. Peça "
                      "a autorização de um supervisor."};
  }

  void Mover(servicos::TipoDeMovimento tipo, const char* descricao, base::Currency valor) {
    Lancamento movimento = movimento_;
    movimento.tipo = tipo;
    movimento.valor = valor;
    movimento.quando = banco().Agora();
    movimento.operacao = NumeroUnico();
    if (movimento.descricao.empty()) movimento.descricao = descricao;
    if (!pagamento::Existe(movimento.moeda)) {
      throw Refusal{.sentence = "A forma de pagamento " + std::to_string(movimento.moeda) +
                                " não é conhecida. Refaça o lançamento."};
    }
    RegistrarMovimento(banco(), movimento);
  }

  Lancamento movimento_{.situacao = ""};  ///< As the screen sets it.
  Venda venda_;
  std::string valor_ = "0";
  std::string cliente_;
  base::Currency troco_;
  const base::GradeLida* itens_ = nullptr;
  const base::GradeLida* pagamentos_ = nullptr;
  std::int32_t numeroDaVenda_ = 0;
};

}  // namespace

ServicoNovo NovoClsCaixa(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsCaixa>(banco);
}

}  // namespace services
