#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frame/Mensagens.h"
#include "platform/Screens.h"
#include "register/frmCaixaMovimento.h"
#include "support/ModuleServices.h"

namespace registers {
namespace {

using platform::Icon;
using platform::Key;
using platform::KeyStroke;
using testing::ElementsAre;
namespace input = platform::input;

class MovimentoTest : public testing::Test {
 protected:
  MovimentoTest() { module.session.values["PermissaoDoModuloCaixaEfetuarSaidasDeCaixas"] = true; }
  /// Opens a form, lets the operator act in it and closes what he leaves open.
  void Open(frmCaixaMovimento& form, const std::function<void()>& operate) {
    module.desktop.Then([&] {
      operate();
      if (form.IsVisible()) input::Close(form);
    });
    EXPECT_EQ(form.MontarExibirFormulario(), 0);
  }
  static void Type(frmCaixaMovimento& form, platform::Control& field, std::string_view text) {
    input::Focus(field);
    input::Type(form, text);
  }
  void RegisterValue(frmCaixaMovimento& form, std::string_view value) {
    Open(form, [&] {
      Type(form, form.zvnumValorEmDinheiro, value);
      input::Click(form.zvcmdSalvar);
      EXPECT_FALSE(form.IsVisible());
    });
  }

  support::Module module;
};

TEST_F(MovimentoTest, WhatReachesTheServiceInItsOrder) {
  struct Case {
    const Movimento& movimento;
    const char *description, *value, *operation;
  };
  const Case family[] = {
      {kCaixaAbrir, "", "\"1250,5\"", "RegistrarAbertura"},
      {kCaixaFechar, "", "double -1250,5", "RegistrarFechamento"},
      {kCaixaEntradas, "Descricao \"Entrada (Reforço)\"\n", "\"1250,5\"", "RegistrarEntrada"},
      {kCaixaSaidas, "Descricao \"Saída (Sangria)\"\n", "\"1250,5\"", "RegistrarSaida"},
  };
  for (const Case& each : family) {
    SCOPED_TRACE(each.operation);
    frmCaixaMovimento form(each.movimento);
    Open(form, [&] {
      EXPECT_TRUE(form.zvnumValorEmDinheiro.HasFocus());
      EXPECT_EQ(form.zvnumValorEmDinheiro.Text(), "0,00");
      // What was typed replaces the zero; a point stands for the comma.
      input::Type(form, "1250.5");
      Type(form, form.zvtxtObservacao, "fundo de troco");
      input::Click(form.zvcmdSalvar);
      EXPECT_FALSE(form.IsVisible());
    });
    EXPECT_EQ(module.TakeCallsAsText(),
              "NumeroDoCaixa 3\n"
              "LocalDeAtendimentoDoCaixa \"Recepção\"\n" +
                  std::string(each.description) +
                  "MOEDA 1s\n"
                  "ValorDoLancamento " +
                  each.value +
                  "\n"
                  "Operador \"carla\"\n"
                  "Situacao \"F\"\n"
                  "Observacao \"fundo de troco\"\n"
                  "DadosDoUsuario record\n"
                  "GradeDeItensDaVenda nothing\n" +
                  each.operation + "\n");
    EXPECT_TRUE(form.OperacaoConcluida());
    EXPECT_EQ(form.NumeroDaFalha(), 0);
    EXPECT_THAT(module.desktop.TakeJournal(),
                ElementsAre("dim 7 0", "show " + form.Name(), "hide " + form.Name(),
                            "forget " + form.Name(), "undim 7"));
  }
}

TEST_F(MovimentoTest, OpeningAndClosingTakeNoValueAtAll) {
  for (const Movimento* movimento : {&kCaixaAbrir, &kCaixaFechar}) {
    frmCaixaMovimento form(*movimento);
    Open(form, [&] {
      input::Focus(form.zvnumValorEmDinheiro);
      input::Press(form, KeyStroke::Of(Key::kDelete));
      EXPECT_EQ(form.zvnumValorEmDinheiro.Text(), "");
      input::Click(form.zvcmdSalvar);
    });
    EXPECT_TRUE(form.OperacaoConcluida());
    const std::vector<std::string> calls = module.TakeCalls();
    EXPECT_THAT(calls, testing::Contains(movimento == &kCaixaAbrir ? "ValorDoLancamento \"0,00\""
                                                                   : "ValorDoLancamento double 0"));
  }
}

// Nothing of worth: empty, zero in any spelling, and a lone comma.
TEST_F(MovimentoTest, ADepositOrWithdrawalOfNothingIsRefusedBeforeASupervisorIsAsked) {
  module.session.values["PermissaoDoModuloCaixaEfetuarSaidasDeCaixas"] = false;
  for (const Movimento* movimento : {&kCaixaEntradas, &kCaixaSaidas}) {
    for (const char* nothing : {"", "0", "0,00", ","}) {
      SCOPED_TRACE(nothing);
      frmCaixaMovimento form(*movimento);
      Open(form, [&] {
        input::Focus(form.zvnumValorEmDinheiro);
        input::Press(form, KeyStroke::Of(Key::kDelete));
        input::Type(form, nothing);
        input::Click(form.zvcmdSalvar);
        EXPECT_EQ(module.desktop.TakeBox(), "Informe o valor.");
        EXPECT_TRUE(form.IsVisible());
        EXPECT_EQ(form.lblValor.ForeColor(), frame::kCorDeRecusa);
        EXPECT_EQ(form.lblObservacao.ForeColor(), frame::kCorNormal);
        EXPECT_TRUE(form.zvnumValorEmDinheiro.HasFocus());
        EXPECT_EQ(form.zvnumValorEmDinheiro.Text(), *nothing == '0' ? nothing : "0,00");
      });
      EXPECT_FALSE(form.OperacaoConcluida());
    }
  }
  EXPECT_TRUE(module.TakeCalls().empty());
}

TEST_F(MovimentoTest, AWithdrawalWithoutTheRightNeedsASupervisor) {
  module.session.values["PermissaoDoModuloCaixaEfetuarSaidasDeCaixas"] = false;
  module.supervisor["PermissaoDoModuloCaixaEfetuarSaidasDeCaixas"] = true;
  frmCaixaMovimento form(kCaixaSaidas);
  const std::int32_t width = form.Width();
  const std::int32_t height = form.Height();
  module.desktop.Then([&] {
    Type(form, form.zvnumValorEmDinheiro, "80");
    module.desktop.Then([&] {
      platform::Form& dialog = *platform::screens::Front();
      EXPECT_EQ(dialog.Name(), "frmCaixaAutorizarSaidasDoCaixa");
      EXPECT_EQ(form.Width(), 0);
      EXPECT_EQ(form.Height(), 0);
      input::Close(dialog);
    });
    input::Click(form.zvcmdSalvar);
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(form.zvnumValorEmDinheiro.Text(), "80");
    EXPECT_EQ(form.Width(), width);
    EXPECT_EQ(form.Height(), height);
    EXPECT_TRUE(module.TakeCalls().empty());

    module.desktop.Then([] {
      platform::Form& dialog = *platform::screens::Front();
      input::Type(dialog, "marta");
      input::Press(dialog, KeyStroke::Of(Key::kTab));
      input::Type(dialog, "segredo");
      input::Press(dialog, KeyStroke::Of(Key::kEnter));
    });
    input::Click(form.zvcmdSalvar);
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(form.MontarExibirFormulario(), 0);
  EXPECT_TRUE(form.OperacaoConcluida());
  EXPECT_THAT(module.TakeCalls(), testing::Contains("RegistrarSaida"));
}

TEST_F(MovimentoTest, ARefusalByTheServiceClosesTheForm) {
  struct Case {
    std::int16_t result;
    Icon icon;
    std::int32_t failure;
    const char* description;
  };
  for (const Case& each : {Case{2, Icon::kInformation, 0, ""}, Case{3, Icon::kStop, 0, ""},
                           Case{51, Icon::kInformation, 51, "Recusado pelo serviço."},
                           Case{-1, Icon::kInformation, -1, "Recusado pelo serviço."}}) {
    SCOPED_TRACE(each.result);
    module.results["RegistrarEntrada"] = each.result;
    frmCaixaMovimento form(kCaixaEntradas);
    RegisterValue(form, "80");
    const std::vector<platform::MessageBox> boxes = module.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Recusado pelo serviço.");
    EXPECT_EQ(boxes[0].icon, each.icon);
    EXPECT_FALSE(form.OperacaoConcluida());
    EXPECT_EQ(form.NumeroDaFalha(), each.failure);
    EXPECT_EQ(form.DescricaoDaFalha(), each.description);
  }
  module.results["RegistrarEntrada"] = 1;
  frmCaixaMovimento form(kCaixaEntradas);
  RegisterValue(form, "80");
  EXPECT_EQ(module.TakeError(), "1205 Banco fora do ar. @ servico");
  EXPECT_FALSE(form.OperacaoConcluida());
  EXPECT_EQ(form.NumeroDaFalha(), 0);
}

TEST_F(MovimentoTest, LeavingRegistersNothing) {
  const auto leave = [&](auto act) {
    frmCaixaMovimento form(kCaixaEntradas);
    Open(form, [&] {
      Type(form, form.zvnumValorEmDinheiro, "80");
      act(form);
      EXPECT_FALSE(form.IsVisible());
    });
    EXPECT_FALSE(form.OperacaoConcluida());
  };
  leave([](frmCaixaMovimento& form) { input::Click(form.zvcmdCancelar); });
  leave([](frmCaixaMovimento& form) { input::Press(form, KeyStroke::Of(Key::kEscape)); });
  leave([](frmCaixaMovimento& form) { input::Close(form); });
  EXPECT_TRUE(module.TakeCalls().empty());
}

// A scanner is a keyboard that ends with Enter.
TEST_F(MovimentoTest, AStrayScanRegistersNothing) {
  frmCaixaMovimento form(kCaixaAbrir);
  Open(form, [&] {
    for (platform::Control* field : std::initializer_list<platform::Control*>{
             &form.zvnumValorEmDinheiro, &form.zvtxtObservacao}) {
      input::Focus(*field);
      input::Type(form, "7891234567895\n");
      EXPECT_TRUE(form.IsVisible());
      EXPECT_TRUE(field->HasFocus());
    }
  });
  EXPECT_TRUE(module.TakeCalls().empty());
}

TEST_F(MovimentoTest, AFaultIsReportedAndLeavesTheFormAsItStood) {
  support::Module::Lose("ZOVA_N_Caixa.clsCaixa");
  frmCaixaMovimento form(kCaixaFechar);
  Open(form, [&] {
    Type(form, form.zvnumValorEmDinheiro, "80");
    input::Click(form.zvcmdSalvar);
    EXPECT_TRUE(form.IsVisible());
    EXPECT_EQ(form.zvnumValorEmDinheiro.Text(), "80");
    EXPECT_EQ(form.MousePointer(), platform::kDefaultPointer);
  });
  EXPECT_FALSE(form.OperacaoConcluida());
  EXPECT_EQ(module.TakeError(),
            "429 Não foi possível criar o objeto. @ ZOVA_A_Caixa, frmCaixaFechar, "
            "zvcmdSalvar_Click, Ponto: 3");

  frmCaixaMovimento failing(kCaixaAbrir);
  module.desktop.Then([] { throw base::RuntimeError(base::Fault::kInvalidArgument); });
  EXPECT_EQ(failing.MontarExibirFormulario(), 1);
  EXPECT_EQ(module.TakeError(),
            "5 Argumento inválido. @ ZOVA_A_Caixa, frmCaixaAbrir, MontarExibirFormulario, "
            "Ponto: 3");
  EXPECT_EQ(module.desktop.TakeJournal().back(), "undim 7");
}

}  // namespace
}  // namespace registers
