#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include "desktop/screen/Clinic.h"
#include "desktop/screen/XScreen.h"

namespace {

using xscreen::Operator;

constexpr int kPatience = 30'000;

/// The clinic issues coupons and prints receipts; beside it the stand-in for the fiscal application
/// and a folder of PDF files for a printer.
class CouponSaleTest : public xscreen::Clinic {
 protected:
  void SetUp() override {
    Clinic::SetUp();
    Bank({QStringLiteral("empresa"), QStringLiteral("CodigoDoDocumentoComEmissaoPermitida=11"),
          QStringLiteral("ImprimirComprovanteDeCFeSAT=Sim"),
          QStringLiteral("SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT=Sim"),
          QStringLiteral("ImprimirComprovanteDePagamento=Sim")});
    QFile settings(folder.filePath(QStringLiteral("aplicacao.ini")));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[Fiscal]\nPasta=troca\n[Impressao]\nImpressora=pdf:impressos\n");
    settings.close();
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("troca")));
    xscreen::TieToUs(integrator);
    integrator.start(QStringLiteral(INTEGRATOR_PROGRAM),
                     {folder.filePath(QStringLiteral("troca"))});
    ASSERT_TRUE(integrator.waitForStarted(kPatience));
  }
  void TearDown() override {
    if (integrator.state() != QProcess::NotRunning) integrator.kill();
    integrator.waitForFinished(kPatience);
  }

  /// Has the stand-in end, and gives the keys that it has told, one after the other.
  std::string KeysAnswered() {
    integrator.terminate();
    EXPECT_TRUE(integrator.waitForFinished(kPatience));
    const QString told = QString::fromUtf8(integrator.readAllStandardOutput());
    static const QRegularExpression kIssued(QStringLiteral("Emitido: (\\d{44})\n"));
    std::string keys;
    for (const auto& each : kIssued.globalMatch(told)) keys += each.captured(1).toStdString();
    return keys;
  }

  /// What stands on the only sheet that came out of the printer, blanks made one.
  QString Printed() const {
    const QDir printer(folder.filePath(QStringLiteral("impressos")));
    const QStringList sheets = printer.entryList(QDir::Files);
    if (sheets.size() != 1) return QStringLiteral("printed: ") + sheets.join(u',');
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), printer.filePath(sheets[0]), QStringLiteral("-")});
    EXPECT_TRUE(reader.waitForFinished(kPatience));
    return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
  }

  QProcess integrator;
};

void ChooseElzaFromTheList(Operator& at) {
  at.Fill("zvfNomeOuRazaoSocialDoCliente", "mar");
  at.Key("Return");
  at.See("frmPesquisaDeClientes");
  at.Key("Down");
  at.Key("Return");
  at.See("frmCaixaOperar");
  at.See("zvfNomeOuRazaoSocialDoCliente", "Elza Maria Quintanilha");
}

void AddAServiceAndAProduct(Operator& at) {
  at.Pick("zvcmbTiposDeServicos", "Clínicos");
  at.Fill("zvfNomeDoServico", "curativo");
  at.Key("Return");
  at.See("zvfNomeDoServico", "Curativo");
  at.See("zvcmbAnimal", "Chiquinha");
  at.Click("zvcmdAdicionar");
  at.See("zvnumLiquidoAPagar", "45,00");
  at.Click("optProduto");
  at.Click("zvfCodigoDeBarrasDoProduto");
  at.Scan("7890000010030");
  at.See("zvfNomeDoProduto", "Ração cães adultos Farejão 15 kg");
  at.Click("zvcmdAdicionar");
  at.See("zvnumLiquidoAPagar", "234,90");
}

void PayInCashWithTheCpfOnTheCoupon(Operator& at) {
  at.Click("zvcmdPagamento");
  at.See("frmCaixaPagar");
  at.Pick("zvcmbFormaDePagamento", "1-Dinheiro");
  at.Fill("zvnumValor", "250,00");
  at.Click("zvcmdAdicionar");
  at.See("zvtxtSaldoDevedorOuTroco", "-15,10");
  at.Click("zvcmdConfirmar");
  at.See("frmCaixaInformarCPFCNPJ");
  at.Click("optTipo(1)");
  at.Fill("zvmskCpfCnpj", "99900077725");
  at.See("zvmskCpfCnpj", "999.000.777-25");
  at.Key("Return");
  at.SeeBox("Deseja imprimir o comprovante de CF-e / SAT?");
  at.Key("s");
  at.See("frmCaixaOperar");
  at.See("zvnumLiquidoAPagar", "0,00");
}

TEST_F(CouponSaleTest, KeepsTheKeyThatWasAnsweredAndPrintsTheReceipt) {
  OnScreen(true, [](Operator& at) {
    SignInAndOpenTheRegister(at);
    ChooseElzaFromTheList(at);
    AddAServiceAndAProduct(at);
    PayInCashWithTheCpfOnTheCoupon(at);
    EXPECT_EQ(at.End([&](QProcess&) { at.Key("alt+F4"); }), 0);
  });
  const std::string key = KeysAnswered();
  EXPECT_EQ(key.size(), 44U) << "one coupon is one key";
  const std::string sale = Bank({QStringLiteral("venda"), QStringLiteral("1")});
  EXPECT_NE(sale.find("Cliente: 6 - Dona Elza\n"), std::string::npos) << sale;
  EXPECT_NE(sale.find("Recebimento em Dinheiro: 250,00\nTroco em Dinheiro: -15,10\n"
                      "Chave do CF-e: " +
                      key + '\n'),
            std::string::npos)
      << sale;
  EXPECT_TRUE(QDir(folder.filePath(QStringLiteral("troca"))).isEmpty(QDir::Files));
  const QString receipt = Printed();
  for (const char* line :
       {"Venda nº 1", "6 - Elza Maria Quintanilha", "Chiquinha Curativo 1 45,00 0,00 45,00",
        "Ração cães adultos Farejão", "1 UN 189,90 0,00 189,90",
        "Total dos serviços e produtos: 234,90", "Valor Pago (Dinheiro): 250,00", "15,10"}) {
    EXPECT_TRUE(receipt.contains(QString::fromUtf8(line))) << line << "\n" << receipt.toStdString();
  }
  ExpectBalancedAndFree();
}

}  // namespace
