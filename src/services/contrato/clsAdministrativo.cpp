#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "services/banco/DatabaseError.h"
#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/Registros.h"
#include "services/venda/Travas.h"

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

  /// Where a caller names no computer, the customer is freed for this database object's own.
  void NomeDoComputador(std::string_view nome) override { computador_ = nome; }

  std::int16_t SelecionarClientesComTransacoesBloqueadas(std::int32_t, std::int16_t, double& codigo,
                                                         std::int16_t) override {
    return Numerado("SelecionarClientesComTransacoesBloqueadas", [&] {
      static const Statement held(
          "SELECT " + NomeParaAEstacao(2, 3) +
          " AS nome_do_computador, nome_do_usuario, codigo_do_cliente, data_e_hora"
          " FROM travas_de_clientes WHERE codigo_do_cliente = $1");
      const Estacao estacao = EstaEstacao();
      const Params params{CodeIn(codigo).value_or(0), ComputerForm(estacao.nome), estacao.marca};
      outcome_.rows = SelectRows(sessao(), kFields, held, params).rows;
    });
  }

  std::int16_t BloquearCliente(std::int16_t, double& codigo, std::int16_t) override {
    return Numerado("BloquearCliente", [&] {
      if (dados() == nullptr) throw base::RuntimeError(base::Fault::kObjectNotSet);
      const std::int32_t cliente = CodeIn(codigo).value_or(0);
      // What was registered before is not told of any more, and whoever is being served again is
      // not freed.
      banco().Registros().EsquecerUltimo();
      banco().NaoLiberar(cliente);
      TravarCliente(banco(), cliente, EstaEstacao(), base::ToText(dados()->Field("NomeDeUsuario")));
      banco().ClienteEmAtendimento(cliente);
    });
  }

  std::int16_t DesbloquearCliente(std::int16_t, double& codigo, std::int16_t) override {
    banco().ClienteEmAtendimento(0);
    return Numerado("DesbloquearCliente", [&] {
      const std::int32_t cliente = CodeIn(codigo).value_or(0);
      try {
        DestravarCliente(banco(), cliente, EstaEstacao());
      } catch (const DatabaseError&) {
        // The module asks once, and does not look at the answer.
        banco().LiberarDepois(cliente, EstaEstacao());
        throw;
      }
    });
  }

 private:
  Estacao EstaEstacao() {
    return {computador_.empty() ? banco().Computador() : computador_, banco().Marca()};
  }

  std::string computador_;
};

}  // namespace

ServicoNovo NovoClsAdministrativo(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsAdministrativo>(banco);
}

}  // namespace services
