#include "base/Text.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "services/banco/NameSearch.h"
#include "services/banco/Search.h"
#include "services/contrato/Fabricas.h"
#include "services/contrato/SobreBanco.h"
#include "services/venda/LimiteDeCredito.h"

namespace services {
namespace {

using Contrato = servicos::ZOVA_N_ClientAnim::clsClientes;
using enum Field::Kind;

constexpr Field kFields[] = {
    {"CodigoDoCliente", kNumber, "codigo"},
    {"ApelidoOuNomeFantasia", kText, "apelido"},
    {"NomeOuRazaoSocial", kText, "nome"},
    {"Situacao", kNumber, "situacao"},
    {"EnderecoCompleto", kText, "endereco_completo"},
    {"TiposECanaisDeComunicacao", kText, "canais_de_comunicacao"},
    {"Credito", kMoney, "credito"},
    {"DescontoUnico", kYesNo, "desconto_unico"},
    {"PercentualUnicoDeDescontos", kMoney, "desconto_unico_perc"},
    {"PercentualDeDescontoEmClinicos", kMoney, "desconto_clinicos"},
    {"PercentualDeDescontoEmCirurgiaSimples", kMoney, "desconto_cirurgia_simples"},
    {"PercentualDeDescontoEmCirurgiaMedia", kMoney, "desconto_cirurgia_media"},
    {"PercentualDeDescontoEmCirurgiaComplexa", kMoney, "desconto_cirurgia_complexa"},
    {"PercentualDeDescontoEmBanhosTosasEEsteticas", kMoney, "desconto_banhos"},
    {"PercentualDeDescontoEmHospedagens", kMoney, "desconto_hospedagens"},
    {"PercentualDeDescontoEmAdestramentos", kMoney, "desconto_adestramentos"},
    {"PercentualDeDescontoEmOutros", kMoney, "desconto_outros"},
    {"VIP", kYesNo, "vip"},
    {"CategoriaDaCurvaABC", kText, "categoria_da_curva_abc"},
    {"CPFCNPJ", kText, "cpf_cnpj"},
    {"CodigoIBGEDoMunicipio", kText, "codigo_ibge_do_municipio"},
};

constexpr NameSearch::Table kTable{"clientes", "codigo"};

std::string SelectCustomers(std::string_view where) {
  return "SELECT " + ColumnsOf(kFields) + " FROM clientes WHERE " + std::string(where);
}

class clsClientes : public SobreBanco<Contrato> {
 public:
  using SobreBanco::SobreBanco;

  std::int16_t Selecionar(std::int32_t, std::int16_t, std::int32_t,
                          std::string_view textoDeQualquerCampo, std::string& nome, double& codigo,
                          std::string_view, std::string_view, std::string_view, double,
                          std::string_view) override {
    return Numerado("Selecionar", [&] {
      const std::string texto = base::Trim(textoDeQualquerCampo);
      if (!texto.empty()) {
        PorCodigoOuNome(texto);
      } else if (!base::IsBlank(nome)) {
        PorNome(nome);
      } else {
        PorCodigo(CodeIn(codigo).value_or(0));
      }
    });
  }

  std::int16_t RetornarInformacoesDoLimiteDeCredito(double& codigo, base::Currency& limite,
                                                    base::Currency& utilizado,
                                                    base::Currency& disponivel) override {
    return Numerado("RetornarInformacoesDoLimiteDeCredito", [&] {
      const auto credito = LerLimiteDeCredito(sessao(), CodeIn(codigo).value_or(0));
      // Without a limit of their own a customer may buy on credit at will, so this may not pass as
      // one.
      if (!credito) {
        throw base::RuntimeError(
            5, "Não há cliente cadastrado com o código " + base::ToText(codigo) + ".");
      }
      limite = credito->limite;
      utilizado = credito->utilizado;
      disponivel = credito->Disponivel();
    });
  }

 private:
  Listing Lista() { return {sessao(), outcome_, kFields, "clientes"}; }

  void PorCodigo(std::int32_t codigo) {
    static const Statement select(SelectCustomers("codigo = $1"));
    Lista().Show(select, {codigo});
  }

  void PorNome(std::string_view nome) {
    static const NameSearch search(
        SelectCustomers("codigo IN ({named}) ORDER BY nome_busca, codigo"), kTable, 0, kLimit);
    static const Statement nobody(SelectCustomers("1 = 0"));
    Lista().ShowNamed(search, nobody, nome, {});
  }

  /// Whoever has the code comes first, so that the cap on rows never leaves them out.
  void PorCodigoOuNome(const std::string& texto) {
    static const NameSearch search(
        SelectCustomers("codigo IN (SELECT CAST($1 AS integer) UNION ALL"
                        " SELECT * FROM ({named}) n) ORDER BY codigo <> $1, nome_busca, codigo"),
        kTable, 1, kLimit);
    static const Statement code(SelectCustomers("codigo = $1"));
    Lista().ShowNamed(search, code, texto, {CodeIn(texto).value_or(0)});
  }
};

}  // namespace

ServicoNovo NovoClsClientes(const std::shared_ptr<Banco>& banco) {
  return std::make_unique<clsClientes>(banco);
}

}  // namespace services
