// Waits over a darkened host, and the reporter of errors.

#include <gtest/gtest.h>

#include "frame/PainelDeMensagem.h"
#include "frame/Procedimento.h"
#include "frame/frmMensagem.h"
#include "frame/modMensagemDeErro.h"
#include "frame/modPausar.h"
#include "frame/modPegarNomeDoComputador.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "platform/Layout.h"
#include "support/ModuleServices.h"
#include "support/Table.h"

namespace frame {
namespace {

using clsSO = servicos::ZOVA_N_SO::clsObterVersaoDoSO;
using support::Joined;

struct Tela : platform::Form {
  Tela() : Form("frm") {
    picMensagem.Visible.Assign(false);
    Arrange({{9000, 6000}, {{picMensagem, {0, 0, 4500, 1200}}}});
  }
  platform::PictureBox picMensagem{*this, "picMensagem"};
};

class Painel : public testing::Test {
 protected:
  Painel() {
    tela.Show();
    module.desktop.TakeJournal();
  }
  std::string Journal() { return Joined(module.desktop.TakeJournal()); }

  support::Module module;
  Tela tela;
  PainelDeMensagem painel{tela, tela.picMensagem};
};

TEST_F(Painel, StandsForASecondALittleAboveTheCentre) {
  painel.ExibirOcultar(true, true);
  EXPECT_EQ(tela.MousePointer(), platform::kHourglassPointer);
  EXPECT_EQ(tela.picMensagem.Width(), 0);
  EXPECT_EQ(module.desktop.Elapsed(), 0) << "an hourglass makes nobody wait";
  painel.ExibirOcultar(true, true);
  painel.ExibirOcultar(true, false);
  EXPECT_EQ(tela.picMensagem.Width(), 0) << "the hourglass stands";
  painel.ExibirOcultar(false, false);
  painel.ExibirOcultar(false, false);
  EXPECT_EQ(Journal(), "dim 7 1, undim 7") << "once, however often it was asked for";
  EXPECT_EQ(tela.MousePointer(), platform::kDefaultPointer);

  bool lives = false;
  module.desktop.After(0.5, [&] { lives = tela.picMensagem.IsShown(); });
  painel.ExibirOcultar(true, false);
  EXPECT_TRUE(lives) << "events run meanwhile";
  EXPECT_EQ(module.desktop.Elapsed(), 1);
  EXPECT_EQ(tela.picMensagem.CornerRadius(), 30);
  EXPECT_EQ(tela.picMensagem.Top(), 6000 / 2 - 1200 * 3 / 2);
  EXPECT_EQ(tela.picMensagem.Left(), 9000 / 2 - 4500 / 2);
  painel.ExibirOcultar(false, false);
  EXPECT_EQ(Journal(), "dim 7 1, undim 7");
}

TEST_F(Painel, ThatCannotBeShownLeavesTheHostBright) {
  module.Lose(clsSO::kIdentificador);
  EXPECT_THROW(Espera{painel}, base::RuntimeError);
  EXPECT_FALSE(painel.Visivel());
  EXPECT_EQ(Journal(), "dim 7 1, undim 7");
}

TEST_F(Painel, IsTakenAwayByWhoeverPutItUp) {
  {
    const Espera outer(painel, true);
    { const Espera inner(painel); }
    EXPECT_TRUE(painel.Visivel());
  }
  EXPECT_FALSE(painel.Visivel());
  EXPECT_EQ(Journal(), "dim 7 1, undim 7");
}

TEST_F(Painel, HasItsLikeInAFormOfItsOwn) {
  frmMensagem mensagem;
  mensagem.lblMensagem.Caption = "Aguarde, reorganizando dados.";
  std::int16_t falha = 99;
  mensagem.MontarExibirFormulario(falha);
  EXPECT_EQ(falha, 0);
  EXPECT_TRUE(mensagem.IsVisible());
  EXPECT_FALSE(mensagem.IsModal());
  EXPECT_EQ(module.desktop.Elapsed(), 1);
  EXPECT_EQ(mensagem.CornerRadius(), 5);
  EXPECT_EQ(mensagem.lblMensagem.Width(), mensagem.Width()) << "the first resize stretches it";
  const std::int32_t stretched = mensagem.Width();
  mensagem.ResizeTo(9000, 1200);
  EXPECT_EQ(mensagem.lblMensagem.Width(), stretched) << "every other one does";
  mensagem.ResizeTo(9600, 1200);
  EXPECT_EQ(mensagem.lblMensagem.Width(), 9600);
}

/// The service that keeps the customers' locks.
class Administrativo final : public servicos::ZOVA_N_Administrativo::clsAdministrativo {
 public:
  Administrativo(std::vector<std::string>& told, bool fails) : told_(told), fails_(fails) {}
  void DadosDoUsuario(const base::Record*) override {}
  std::int16_t DesbloquearCliente(std::int16_t a, double& code, std::int16_t b) override {
    if (fails_) throw base::RuntimeError(base::Fault::kObjectNotSet);
    told_.push_back("unlock " + base::ToText(a) + " " + base::ToText(code) + " " + base::ToText(b));
    return 0;
  }

 private:
  std::vector<std::string>& told_;
  bool fails_;
};

class Relato : public testing::Test {
 protected:
  Relato() {
    servicos::Registrar(Administrativo::kIdentificador,
                        [this] { return std::make_unique<Administrativo>(told, fails); });
  }

  support::Module module;
  std::vector<std::string> told;
  bool fails = false;
};

TEST_F(Relato, SaysWhereAndFreesTheCustomerFirst) {
  const auto procedure = [] {
    Procedimento(Etiqueta{"frmCaixaOperar", "PesquisarCliente"}, [](Ponto& ponto) {
      ponto = 4;
      base::ToDouble("x");
    });
  };
  const std::string report =
      "13 Incompatibilidade de tipo. @ ZOVA_A_Caixa, frmCaixaOperar, PesquisarCliente, Ponto: 4";
  procedure();
  EXPECT_EQ(module.TakeError(), report);
  EXPECT_EQ(Joined(told), "") << "nobody is held";

  valores().CodigoDoClienteComOperacoesBloqueadas = 12;
  procedure();
  EXPECT_EQ(module.TakeError(), report);
  EXPECT_EQ(Joined(told), "unlock 1 12 2");
  EXPECT_EQ(valores().CodigoDoClienteComOperacoesBloqueadas, 0);
}

TEST_F(Relato, ThatFailsGoesUpToTheCaller) {
  valores().CodigoDoClienteComOperacoesBloqueadas = 12;
  fails = true;
  EXPECT_THROW(Procedimento(Etiqueta{"frm", "Form_Load"}, [](Ponto&) { base::ToDouble("x"); }),
               base::RuntimeError);
  EXPECT_TRUE(module.TakeErrors().empty()) << "an error inside a report does not report again";
  fails = false;
  Procedimento(Etiqueta{"frm", "Form_Load"}, [](Ponto&) { base::ToDouble("x"); });
  EXPECT_EQ(module.TakeErrors().size(), 1U) << "the next error is reported like any other";
}

TEST_F(Relato, KnowsTheComputerByItsNameOrAsN) {
  module.desktop.computer = "  BALCAO-2 ";
  EXPECT_EQ(PegarNomeDoComputador(), "BALCAO-2");
  module.desktop.computer = " ";
  EXPECT_EQ(PegarNomeDoComputador(), "N");
}

}  // namespace
}  // namespace frame
