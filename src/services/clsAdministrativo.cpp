#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "services/DatabaseError.h"
#include "services/Fabricas.h"
#include "services/Fields.h"
#include "services/Search.h"
#include "services/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Administrativo::clsAdministrativo;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"NomeDoComputador", kText, "nome_do_computador"},
    {"NomeDoUsuario", kText, "nome_do_usuario"},
    {"CodigoDoCliente", kNumber, "codigo_do_cliente"},
    {"DataEHora", kMoment, "data_e_hora"},
};

class clsAdministrativo : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  /// For who frees a customer without saying where, it is the computer of this database object.
  void NomeDoComputador(std::string_view nome) override { computador_ = nome; }

  std::int16_t SelecionarClientesComTransacoesBloqueadas(std::int32_t, std::int16_t, double& codigo,
                                                         std::int16_t) override {
    return Numerado("SelecionarClientesComTransacoesBloqueadas", [&] {
      static const Statement held("SELECT " + ColumnsOf(kFields) +
                                  " FROM travas_de_clientes WHERE codigo_do_cliente = $1");
      outcome_.rows = SelectRows(sessao(), kFields, held, {CodeIn(codigo).value_or(0)}).rows;
    });
  }

  std::int16_t BloquearCliente(std::int16_t, double& codigo, std::int16_t) override {
    return Numerado("BloquearCliente", [&] {
      Bloquear(CodeIn(codigo).value_or(0));
      banco().ClienteEmAtendimento(CodeIn(codigo).value_or(0));
    });
  }

  std::int16_t DesbloquearCliente(std::int16_t, double& codigo, std::int16_t) override {
    banco().ClienteEmAtendimento(0);
    return Numerado("DesbloquearCliente", [&] { Desbloquear(CodeIn(codigo).value_or(0)); });
  }

 private:
  const std::string& Computador() {
    return computador_.empty() ? banco().Computador() : computador_;
  }
  std::string Chave() { return ComputerForm(Computador()); }

  void Bloquear(std::int32_t codigo) {
    static const Statement take(
        "INSERT INTO travas_de_clientes (codigo_do_cliente, nome_do_computador, computador_busca,"
        " nome_do_usuario, data_e_hora)"
        " VALUES ($1, $2, $3, $4, $5)"
        " ON CONFLICT (codigo_do_cliente) DO UPDATE SET"
        " nome_do_computador = excluded.nome_do_computador,"
        " nome_do_usuario = excluded.nome_do_usuario, data_e_hora = excluded.data_e_hora"
        " WHERE travas_de_clientes.computador_busca = excluded.computador_busca");
    if (dados() == nullptr) throw base::RuntimeError(base::Fault::kObjectNotSet);
    const std::string usuario = base::ToText(dados()->Field("NomeDeUsuario"));
    const Params params{codigo, Computador(), Chave(), usuario, banco().Agora()};
    try {
      InTransaction(sessao(), [&](Transaction&) {
        // The row stays locked though it was not written: the holder is there to be named.
        if (sessao().Run(take, params) == 0) throw EmAtendimento(Detentor(codigo));
      });
    } catch (const DatabaseError& error) {
      // Only a customer who exists can be held.
      if (error.What() != Trouble::kConstraint) throw;
      throw Refusal{.sentence = "Não há cliente cadastrado com o código " + std::to_string(codigo) +
                                ". Selecione o cliente de novo."};
    }
  }

  void Desbloquear(std::int32_t codigo) {
    static const Statement free(
        "DELETE FROM travas_de_clientes"
        " WHERE codigo_do_cliente = $1 AND computador_busca = $2");
    InTransaction(sessao(), [&](Transaction&) {
      if (sessao().Run(free, {codigo, Chave()}) > 0) return;
      const std::string detentor = Detentor(codigo);
      if (!detentor.empty()) throw EmAtendimento(detentor);
    });
  }

  /// Who holds the customer, in words; empty when nobody does.
  std::string Detentor(std::int32_t codigo) {
    static const Statement holder(
        "SELECT nome_do_usuario, nome_do_computador"
        " FROM travas_de_clientes WHERE codigo_do_cliente = $1");
    std::string text;
    sessao().Select(holder, {codigo},
                    [&](const Row& row) { text = row.Text(0) + " no computador " + row.Text(1); });
    return text;
  }

  static Refusal EmAtendimento(const std::string& detentor) {
    return {.sentence = "Este cliente está em atendimento com " + detentor +
                        ". Aguarde o fim do atendimento."};
  }

  std::string computador_;
};

}  // namespace

ServicoNovo NovoClsAdministrativo(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsAdministrativo>(banco);
}

}  // namespace services
