#include "base/Text.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "services/Database.h"
#include "services/banco/Search.h"

namespace services {
namespace {

using Customers = servicos::ZOVA_N_ClientAnim::clsClientes;
using Products = servicos::ZOVA_N_Produtos::clsProdutos;
using Services = servicos::ZOVA_N_Servicos::clsServicos;

/// One column of a record set, its rows parted by "; ".
std::string All(const base::RecordSetPtr& rows, std::string_view field) {
  std::string text;
  if (!rows) return "no record set";
  base::ForEachRow(*rows, [&] {
    if (!text.empty()) text += "; ";
    text += base::ToText(rows->Fields(field));
  });
  return text;
}

/// What the searches find.
class LookupTest : public OverDatabase {
 protected:
  void Customer(std::int32_t code, const std::string& nickname, const std::string& name) {
    Fill("clientes", "codigo, apelido, nome, nome_busca",
         {{code, nickname, name, SearchForm(nickname, name)}});
  }
  void Product(std::int32_t code, const std::string& barcode, const std::string& name) {
    Fill("produtos", "codigo_interno, codigo_de_barras, nome, nome_busca, valor_de_venda",
         {{code, barcode, name, SearchForm(name), 30_brl}});
  }
  void Service(std::int32_t code, std::int32_t type, const std::string& name) {
    Fill("servicos", "codigo, tipo, nome, nome_busca", {{code, type, name, SearchForm(name)}});
  }

  /// Rows of a table in one statement, one more than a search shows, coded from 10000 on: `values`
  /// are SQL of the code n.
  void TooMany(const std::string& table, const std::string& columns, const std::string& values) {
    Write("INSERT INTO " + table + " (" + columns +
          ") WITH RECURSIVE codes (n) AS (SELECT 10000 UNION ALL SELECT n + 1 FROM codes"
          " WHERE n < " +
          std::to_string(10'000 + kMostRows) + ") SELECT " + values + " FROM codes");
  }

  /// As the counter searches: by the text of a name field, or by the code.
  std::string CustomersBy(std::string name, double code = 0, const std::string& any = "") {
    const auto service = servicos::CriarServico<Customers>();
    EXPECT_EQ(0, service->Selecionar(2, 0, 0, any, name, code, "", "", "", 0, ""));
    return All(service->ResultadoDaSelecaoEmRecordSet(), "CodigoDoCliente");
  }
  /// As the pick list searches.
  std::string CustomersByAny(const std::string& text) { return CustomersBy("", 0, text); }
  std::string ProductsBy(std::string name, std::string barcode, double code,
                         std::string_view field = "CodigoInterno") {
    const auto service = servicos::CriarServico<Products>();
    EXPECT_FALSE(service->Selecionar(2, 0, 1, "", name, barcode, code));
    return All(service->ResultadoDaSelecaoEmRecordSet(), field);
  }
  std::string ProductsByAny(const std::string& text) {
    const auto service = servicos::CriarServico<Products>();
    EXPECT_FALSE(service->Selecionar(2, 0, 1, text, ""));
    return All(service->ResultadoDaSelecaoEmRecordSet(), "CodigoInterno");
  }
  std::string ServicesBy(std::int16_t type, std::string name, double code) {
    const auto service = servicos::CriarServico<Services>();
    EXPECT_FALSE(service->Selecionar(2, 0, 1, "", type, name, code));
    return All(service->ResultadoDaSelecaoEmRecordSet(), "Codigo");
  }
};
OVER_BOTH_ENGINES(LookupTest);

TEST_P(LookupTest, CustomersAreFoundByAnyPartOfEitherName) {
  Customer(10, "Zé do Pão", "José D'Ávila Conceição");
  Customer(11, "Ana", "Ana 100% \"Bela\" _mar\\");
  Customer(12, "Bia", "Beatriz  JOSEFA  Silva");
  EXPECT_EQ("12; 10", CustomersBy("josé")) << "in the order of the names, case and accents apart";
  EXPECT_EQ("10", CustomersBy("D'AVILA"));
  EXPECT_EQ("10", CustomersBy("do pao"));
  EXPECT_EQ("12", CustomersBy("josefa silva"));
  EXPECT_EQ("11", CustomersBy("100%"));
  EXPECT_EQ("11", CustomersBy("\"bela\""));
  EXPECT_EQ("11", CustomersBy("_mar\\"));
  EXPECT_EQ("", CustomersBy("a%b"));
  EXPECT_EQ("", CustomersBy("silva josefa")) << "the words must follow each other";
  for (const char* part : {"jos", "jose", "josef", "z josef", "josefa s", "josefa si",
                           "riz josefa silv", "beatriz josefa silva"}) {
    EXPECT_NE(std::string::npos, CustomersBy(part).find("12")) << part;
  }
  EXPECT_EQ("", CustomersBy("pao jose")) << "no part lies across both names";
  EXPECT_EQ("", CustomersBy("zé")) << "fewer than three characters";
  EXPECT_EQ("", CustomersBy("' OR 1=1 --"));
  EXPECT_EQ("10", CustomersBy("", 10));
  EXPECT_EQ("", CustomersBy("", 0));
  EXPECT_EQ("", CustomersBy("", 10.5));
  EXPECT_EQ("", CustomersBy("", 1e300));
}

TEST_P(LookupTest, EveryPartOfANameOfShortAndRepeatedWordsFindsIt) {
  const std::string name = "lu da luz e luz da lu luluzinha";
  Customer(10, "Xuxu", name);
  Customer(11, "Bia", "Lu da Luz");
  for (std::size_t at = 0; at + 3 <= name.size(); ++at) {
    for (std::size_t length = 3; at + length <= name.size(); ++length) {
      const std::string part = base::Trim(name.substr(at, length));
      if (part.size() < 3) continue;
      ASSERT_NE(std::string::npos, CustomersBy(part).find("10")) << part;
    }
  }
  EXPECT_EQ("", CustomersBy("luz da luz"));
  EXPECT_EQ("", CustomersBy("lu lu lu"));
}

TEST_P(LookupTest, ThePickListTakesCodeOrName) {
  Customer(123, "Ana", "Ana Maria");
  Customer(7, "Loja 123", "Casa 123 Ltda.");
  EXPECT_EQ("123; 7", CustomersByAny(" 123 "));
  EXPECT_EQ("7", CustomersByAny("7"));
  EXPECT_EQ("123", CustomersByAny("aria"));
  EXPECT_EQ("", CustomersByAny("   "));
  EXPECT_EQ("", CustomersByAny("99999999999"));
}

TEST_P(LookupTest, ARenamedCustomerIsFoundByTheNewNameAlone) {
  Customer(10, "Velho", "Nome Antigo");
  Write("UPDATE clientes SET nome_busca = 'novo' WHERE codigo = 10");
  EXPECT_EQ("", CustomersBy("antigo"));
  EXPECT_EQ("10", CustomersBy("novo"));
  Write("DELETE FROM clientes WHERE codigo = 10");
  EXPECT_EQ("", CustomersBy("novo"));
}

TEST_P(LookupTest, ASearchThatFindsTooManyIsCutAndSaysSo) {
  TooMany("clientes", "codigo, apelido, nome, nome_busca",
          "n, 'Maria', 'Maria ' || n, 'maria\nmaria ' || n");
  const auto search = [](std::string name, std::int32_t expected) {
    const auto service = servicos::CriarServico<Customers>();
    double code = 0;
    EXPECT_EQ(0, service->Selecionar(2, 0, 0, "", name, code, "", "", "", 0, ""));
    EXPECT_EQ(expected, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
    return service->DescricaoDaFalha();
  };
  EXPECT_EQ(
      "Há mais de 5000 clientes com esse nome e só 5000 são mostrados. Digite mais letras para "
      "reduzir a lista.",
      search("maria", 5000));
  EXPECT_EQ("", search("maria 100", 100));
  Write("DELETE FROM clientes WHERE codigo = 15000");
  EXPECT_EQ("", search("maria", 5000)) << "just 5000 are all of them";
}

TEST_P(LookupTest, WhoHasTheCodeIsNotCutOff) {
  TooMany("clientes", "codigo, apelido, nome, nome_busca",
          "n, 'Casa 777', 'Casa ' || n, 'casa 777\ncasa ' || n");
  TooMany("produtos", "codigo_interno, nome, nome_busca",
          "n, 'Caixa 777 ' || n, 'caixa 777 ' || n");
  Customer(777, "Zulmira", "Zulmira");
  Product(777, "", "Zinco");
  Product(778, "777", "Zinco em pó");
  EXPECT_TRUE(CustomersByAny("777").starts_with("777; 10000; "));
  EXPECT_TRUE(ProductsByAny("777").starts_with("777; 778; 10000; "));
}

TEST_P(LookupTest, ProductsAreFoundByCodeThenBarcodeThenName) {
  Product(1, "7890000010015", "Ração Farejão 1 kg");
  Product(2, "", "Ração a granel");
  Product(3, "7890000010015", "Outra de igual código");
  EXPECT_EQ("1", ProductsBy("", "", 1));
  EXPECT_EQ("", ProductsBy("ração", "7890000010015", 9)) << "a code that is given decides";
  EXPECT_EQ("3; 1", ProductsBy("", " 7890000010015 ", 0));
  EXPECT_EQ("", ProductsBy("", "789000001001", 0)) << "a barcode is found whole";
  EXPECT_EQ("2; 1", ProductsBy("RAÇÃO", "", 0));
  EXPECT_EQ("", ProductsBy("", "", 0));
  EXPECT_EQ("3; 1", ProductsByAny("7890000010015")) << "a scanner at the pick list";
  EXPECT_EQ("2", ProductsByAny("2"));
  EXPECT_EQ("2; 1", ProductsByAny("racao"));
}

TEST_P(LookupTest, ALabelOfTheScaleComesBackAsItWasRead) {
  Product(301, "7890000010015", "Ração a granel");
  EXPECT_EQ("2003010012503", ProductsBy("", "2003010012503", 301, "CodigoDeBarras"));
  EXPECT_EQ("7890000010015", ProductsBy("", "", 301, "CodigoDeBarras"));
  EXPECT_EQ("7890000010015", ProductsBy("", "7890000010015", 301, "CodigoDeBarras"));
}

TEST_P(LookupTest, ProductsHaveTheirFieldsAndTypes) {
  Write(
      "INSERT INTO produtos (codigo_interno, codigo_de_barras, nome, nome_busca, grupo, subgrupo,"
      " unidade_de_compra, unidade_de_venda, valor_de_custo, valor_de_venda,"
      " percentual_de_comissao) VALUES (8, '1', 'Xampu', 'xampu', 'Higiene', 'Banho', 'CX', 'UN',"
      " 61234, 123400, 35000)");
  const auto service = servicos::CriarServico<Products>();
  std::string none;
  double code = 8;
  ASSERT_FALSE(service->Selecionar(2, 0, 1, "", none, none, code));
  const auto rows = service->ResultadoDaSelecaoEmRecordSet();
  EXPECT_EQ(base::Value(8), rows->Fields("CodigoInterno"));
  EXPECT_EQ(base::Value(Brl("6,1234")), rows->Fields("ValorDeCusto"));
  EXPECT_EQ(base::Value(Brl("12,34")), rows->Fields("ValorDeVenda"));
  EXPECT_EQ(base::Value(Brl("3,5")), rows->Fields("PercentualDeComissao"));
  EXPECT_TRUE(base::IsNull(rows->Fields("NCM")));
  EXPECT_EQ(base::Value("UN"), rows->Fields("UnidadeDeVenda"));
  EXPECT_EQ(base::Value("CX"), rows->Fields("UnidadeDeCompra"));
  EXPECT_EQ(base::Value("Higiene"), rows->Fields("NomeDoGrupo"));
  EXPECT_EQ(base::Value("Banho"), rows->Fields("NomeDoSubgrupo"));
}

TEST_P(LookupTest, ServicesAreFoundWithinTheirType) {
  Write("INSERT INTO tipos_de_servico (numero, nome) VALUES (1, 'Clínicos'), (5, 'Banhos')");
  Service(1, 1, "Consulta clínica");
  Service(2, 5, "Banho clínico");
  EXPECT_EQ("1", ServicesBy(1, "CLINIC", 0));
  EXPECT_EQ("2; 1", ServicesBy(0, "clínic", 0));
  EXPECT_EQ("2", ServicesBy(5, "", 2));
  EXPECT_EQ("", ServicesBy(1, "", 2));
  const auto service = servicos::CriarServico<Services>();
  EXPECT_FALSE(service->Selecionar(2, 0, 1, "2", std::int32_t{0}));
  EXPECT_EQ("Banho clínico", All(service->ResultadoDaSelecaoEmRecordSet(), "Nome"));
  EXPECT_FALSE(service->Selecionar(2, 0, 1, "consulta", std::int32_t{5}));
  EXPECT_EQ(0, service->ResultadoDaSelecaoEmRecordSet()->RecordCount());
}

}  // namespace
}  // namespace services
