#include "base/Text.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "services/banco/NameSearch.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_Servicos::clsServicos;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"Codigo", kNumber, "codigo"},     {"Nome", kText, "nome"},
    {"Descricao", kText, "descricao"}, {"ValorDeVenda", kMoney, "valor_de_venda"},
    {"Custo", kMoney, "custo"},        {"NumeroDoTipoDeServico", kNumber, "tipo"},
};

constexpr NameSearch::Table kTable{"servicos", "codigo"};

/// The type is bound to $1; 0 stands for all of them. `first` is put in front of the order.
std::string SelectServices(std::string_view where, std::string_view first = "") {
  return "SELECT " + ColumnsOf(kFields) + " FROM servicos WHERE " + std::string(where) +
         " AND (CAST($1 AS integer) = 0 OR tipo = $1) ORDER BY " + std::string(first) +
         "nome_busca, codigo" + std::string(kLimit);
}

class clsServicos : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view, std::int16_t& tipo,
                  std::string& nome, double& codigo) override {
    return ComFalha("Selecionar", [&] {
      codigo != 0 ? PorCodigo(CodeIn(codigo).value_or(0), tipo) : PorNome(nome, tipo);
    });
  }

  bool Selecionar(std::int32_t, std::int16_t, std::int32_t, std::string_view codigoOuNome,
                  std::int32_t tipo) override {
    return ComFalha("Selecionar", [&] { PorCodigoOuNome(base::Trim(codigoOuNome), tipo); });
  }

 private:
  Listing Lista() { return {sessao(), outcome_, kFields, "serviços"}; }

  void PorCodigo(std::int32_t codigo, std::int32_t tipo) {
    static const Statement select(SelectServices("codigo = $2"));
    Lista().Show(select, {tipo, codigo});
  }

  void PorNome(const std::string& nome, std::int32_t tipo) {
    static const NameSearch search(SelectServices("codigo IN ({named})"), kTable, 1);
    static const Statement none(SelectServices("1 = 0"));
    Lista().ShowNamed(search, none, nome, {tipo});
  }

  /// What has the code comes first, so that the cap on rows never leaves it out.
  void PorCodigoOuNome(const std::string& texto, std::int32_t tipo) {
    static const NameSearch search(
        SelectServices("(codigo = $2 OR codigo IN ({named}))", "codigo <> $2, "), kTable, 2);
    static const Statement code(SelectServices("codigo = $2"));
    Lista().ShowNamed(search, code, texto, {tipo, CodeIn(texto).value_or(0)});
  }
};

}  // namespace

ServicoNovo NovoClsServicos(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsServicos>(banco);
}

}  // namespace services
