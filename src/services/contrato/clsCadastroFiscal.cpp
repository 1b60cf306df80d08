#include "siblings/dados/clsCadastroFiscal.h"

#include "services/banco/Fields.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = siblings::dados::clsCadastroFiscal;
using enum Field::Kind;

constexpr Field kOfCustomer[] = {{"Codigo", kText, "codigo_ibge_do_municipio"}};
constexpr Field kOfProduct[] = {{"Codigo", kText, "coalesce(ncm, '')"}};

class clsCadastroFiscal : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t SelecionarMunicipio(double codigoDoCliente) override {
    static const Statement select("SELECT " + ColumnsOf(kOfCustomer) +
                                  " FROM clientes WHERE codigo = $1");
    return Selecionar("SelecionarMunicipio", kOfCustomer, select, codigoDoCliente);
  }
  std::int16_t SelecionarNCM(double codigoInterno) override {
    static const Statement select("SELECT " + ColumnsOf(kOfProduct) +
                                  " FROM produtos WHERE codigo_interno = $1");
    return Selecionar("SelecionarNCM", kOfProduct, select, codigoInterno);
  }
  std::int16_t RegistrarMunicipio(double codigoDoCliente, std::string_view codigo) override {
    static const Statement update(
        "UPDATE clientes SET codigo_ibge_do_municipio = $2 WHERE codigo = $1");
    return Registrar("RegistrarMunicipio", update, codigoDoCliente, codigo);
  }
  std::int16_t RegistrarNCM(double codigoInterno, std::string_view codigo) override {
    static const Statement update("UPDATE produtos SET ncm = $2 WHERE codigo_interno = $1");
    return Registrar("RegistrarNCM", update, codigoInterno, codigo);
  }

 private:
  std::int16_t Selecionar(std::string_view membro, std::span<const Field> fields,
                          const Statement& select, double codigo) {
    return Numerado(membro, [&] {
      outcome_.rows = SelectRows(sessao(), fields, select, {CodeIn(codigo).value_or(0)}).rows;
      if (outcome_.rows->RecordCount() == 0) RefuseAsUnknown();
    });
  }

  std::int16_t Registrar(std::string_view membro, const Statement& update, double codigo,
                         std::string_view novo) {
    return Numerado(membro, [&] {
      InTransaction(sessao(), [&](Transaction&) {
        if (sessao().Run(update, {CodeIn(codigo).value_or(0), novo}) == 0) RefuseAsUnknown();
      });
    });
  }

  [[noreturn]] static void RefuseAsUnknown() {
    throw Refusal{.sentence =
                      "O cadastro não existe mais no banco de dados e o código não foi gravado. "
                      "Feche esta tela e pesquise de novo."};
  }
};

}  // namespace

ServicoNovo NovoClsCadastroFiscal(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsCadastroFiscal>(banco);
}

}  // namespace services
