// The answer of the fiscal application: what the file says, and what each outcome leaves.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Text.h"
#include "fiscal/TrocaDeArquivosCFeSAT.h"
#include "frame/servicos/ArquivoDeRetorno.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "support/ModuleServices.h"

namespace fiscal {
namespace {

using servicos::LerRetorno;
using servicos::Retorno;
using servicos::TextoDoArquivo;
using servicos::ZOVA_N_OSParaBD::clsOSExportarRegistros;

TEST(TheReturnFile, IsReadLineByLine) {
  struct Case {
    std::string_view text;
    bool issued;
    std::string_view error, key;
  };
  for (const Case& each : std::initializer_list<Case>{
           {"|OK||35150900|0|", true, "", "35150900"},
           {"|ok||KEY|\r\n", true, "", "KEY"},
           {"xOK|aviso|KEY", true, "aviso", "KEY"},
           {"|OK", true, "", ""},
           {"", true, "", ""},
           {"|OK||KEY|\r\n\r\n", true, "", "KEY"},
           {"|OK||KEY|\n|OK||KEY|\n", false, "", "KEYKEY"},
           {"|OK||KEY|\r|", true, "", "KEY"},
           {"|ERRO|Falha X|", false, "Falha X", ""},
           {"|ERRO||", false, "", ""},
           {"\r\n|OK||KEY|", false, "", ""},
           {"OK||KEY|", false, "", "KEY"},
           {"| OK||KEY|", false, "", "KEY"},
       }) {
    SCOPED_TRACE(each.text);
    const Retorno answer = LerRetorno(each.text);
    EXPECT_EQ(answer.emitido, each.issued);
    EXPECT_EQ(answer.erro, each.error);
    EXPECT_EQ(answer.chave, each.key);
  }
}

TEST(TheReturnFile, ShowsItsAccentsInEitherEncoding) {
  EXPECT_EQ(TextoDoArquivo("Rejei\xC3\xA7\xC3\xA3o"), "Rejeição");
  EXPECT_EQ(TextoDoArquivo("\xEF\xBB\xBFRejei\xC3\xA7\xC3\xA3o"), "Rejeição");
  EXPECT_EQ(TextoDoArquivo("Rejei\xE7\xE3o \x96 \x93NCM\x94 \x80"), "Rejeição – “NCM” €");
  EXPECT_EQ(TextoDoArquivo("\xC3\xA7 e \xE7"), "Ã§ e ç") << "one or the other, not both";
}

/// Says where the files are; writes nothing.
class Exporter final : public clsOSExportarRegistros {
 public:
  explicit Exporter(bool wrote) : wrote_(wrote) {}
  std::int16_t ExportarDadosCFeSATParaArquivo(std::string_view, std::string_view,
                                              std::string_view) override {
    return 0;
  }
  std::string NomeCompleDoArquivoDeEnvioComDadosCFeSAT() override { return "envio"; }
  std::string NomeCompleDoArquivoDeRetornoComDadosCFeSAT() override { return "retorno"; }
  bool EnvioFoiGravado() override { return wrote_; }

 private:
  bool wrote_;
};

class TheExchange : public testing::Test {
 protected:
  TheExchange() {
    module.session.values["CodigoDoDocumentoComEmissaoPermitida"] = "11";
    servicos::Registrar(Exporter::kIdentificador,
                        [this] { return std::make_unique<Exporter>(wrote); });
  }
  /// The answer comes at once, while the application has not yet taken the other file away.
  bool Export(const std::string& answer) {
    desktop.files["envio"] = "...";
    desktop.files["retorno"] = answer;
    frame::valores().ChaveSAT.clear();
    return exchange.ExportarDadosCFeSATParaArquivo("", "", "");
  }
  std::string Files() const {
    std::string names;
    for (const auto& [name, bytes] : desktop.files) names += name + " ";
    return names;
  }

  support::Module module;
  support::FakeDesktop& desktop = module.desktop;
  TrocaDeArquivosCFeSAT exchange;
  bool wrote = false;
};

// An application that takes the file before anybody looks for it has taken it all the same; where
// nothing was written there is nothing to wait for.
TEST_F(TheExchange, CountsAFileAsWrittenThatWasTakenAtOnce) {
  desktop.files["retorno"] = "|OK||KEY|";
  EXPECT_FALSE(exchange.ExportarDadosCFeSATParaArquivo("", "", ""));
  wrote = true;
  EXPECT_TRUE(exchange.ExportarDadosCFeSATParaArquivo("", "", ""));
  EXPECT_EQ(frame::valores().ChaveSAT, "KEY");
}

// The sale of a host that closes is never registered: no coupon may still be issued from its file.
TEST_F(TheExchange, TakesTheFileBackWhenTheHostCloses) {
  desktop.After(1, [this] { desktop.Close(); });
  EXPECT_THROW(Export("|OK||KEY|"), platform::Shutdown);
  EXPECT_EQ(Files(), "retorno ");
}

}  // namespace
}  // namespace fiscal
