// Choosing and adding a tender: what is offered, suggested and refused.

#include "checkout/CheckoutTest.h"

namespace checkout {
namespace {

using platform::Key;
using platform::KeyStroke;

class TendersTest : public CheckoutTest {
 protected:
  static std::vector<std::string> Offered(const frmCaixaPagar& form) {
    std::vector<std::string> items;
    for (std::int32_t i = 0; i < form.zvcmbFormaDePagamento.ListCount(); ++i) {
      items.push_back(form.zvcmbFormaDePagamento.List(i));
      EXPECT_EQ(form.zvcmbFormaDePagamento.ItemData(i),
                servicos::pagamento::CodigoDa(items.back()));
    }
    return items;
  }
  void SupervisorAnswers(const frmCaixaPagar& form, bool consents) {
    module.supervisor["PermissaoDoModuloCaixaEfetuarVendasACreditoFiado"] = consents;
    module.desktop.Then([&form] {
      EXPECT_LT(form.Left(), -100'000);
      platform::Form& dialog = *platform::screens::Front();
      EXPECT_EQ(dialog.Name(), "frmCaixaAutorizarEfetuarVendasACreditoFiado");
      input::Type(dialog, "marta");
      input::Press(dialog, KeyStroke::Of(Key::kTab));
      input::Type(dialog, "segredo");
      input::Press(dialog, KeyStroke::Of(Key::kEnter));
    });
  }
};

TEST_F(TendersTest, CreditIsOfferedOnlyToACustomerWhoHasSome) {
  for (const char* credit : {"50", "0"}) {
    Pay("1362,3", credit, [&](frmCaixaPagar& form) {
      EXPECT_EQ(form.zvtxtSaldoDevedorOuTroco.Text(), "1.362,30");
      EXPECT_EQ(form.zvnumCreditoDoCliente.Text(), credit + std::string(",00"));
      EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());
      std::vector<std::string> all{"1-Dinheiro",           "2-Cheque", "3-Cartão de crédito",
                                   "4-Cartão de débito",   "5-Boleto", "6-A crédito (Fiado)",
                                   "7-Crédito do cliente", "8-PIX"};
      if (credit == std::string("0")) all.erase(all.begin() + 6);
      EXPECT_EQ(Offered(form), all);
    });
  }
}

// What is typed into the list picks the tender of that code, and the value is next.
TEST_F(TendersTest, AChosenTenderSuggestsTheValue) {
  struct Case {
    const char* credit;
    char32_t code;
    const char* value;
  };
  for (const Case& each :
       {Case{"0", U'1', "100,00"}, Case{"0", U'8', "100,00"}, Case{"40", U'7', "40,00"},
        Case{"100", U'7', "100,00"}, Case{"250", U'7', "100,00"}, Case{"250", U'6', "100,00"}}) {
    Pay("100", each.credit, [&](frmCaixaPagar& form) {
      input::Press(form, KeyStroke::Character(each.code));
      EXPECT_TRUE(form.zvnumValor.HasFocus());
      EXPECT_EQ(form.zvnumValor.Text(), each.value);
    });
  }
  // With nothing left to pay the value stays what it was.
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 1, "100");
    Choose(form, 2);
    EXPECT_EQ(form.zvnumValor.Text(), "0,00");
  });
}

TEST_F(TendersTest, TheDueDateShowsForASaleOnCreditAlone) {
  Pay("100", "50", [&](frmCaixaPagar& form) {
    const std::int32_t narrow = form.zvcmdAdicionar.Left();
    const auto shows = [&] {
      EXPECT_EQ(form.lblDataDeVencimento.IsShown(), form.zvdtpDataDeVencimento.IsShown());
      EXPECT_EQ(form.zvcmdAdicionar.Left() > narrow, form.zvdtpDataDeVencimento.IsShown());
      return form.zvdtpDataDeVencimento.IsShown();
    };
    for (const std::int32_t code : {1, 6, 7, 6, 8}) {
      Choose(form, code);
      EXPECT_EQ(shows(), code == 6);
      EXPECT_EQ(form.zvdtpDataDeVencimento.Text(), code == 6 ? "22/11/2026" : "__/__/____");
      input::Focus(form.zvcmbFormaDePagamento);
    }
    // Nor is the next choice after a tender was added passed over.
    Add(form, 1, "10");
    EXPECT_FALSE(shows());
    Choose(form, 6);
    EXPECT_TRUE(shows());
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(Tenders(form), "1-Dinheiro 10,00 __/__/____, 6-A crédito (Fiado) 90,00 22/11/2026");
    input::Focus(form.zvnumValor);
    EXPECT_FALSE(shows());
  });
  module.TakeCalls();
}

TEST_F(TendersTest, AnAddedTenderLeavesTheFieldsForTheNext) {
  Pay("100", "0", [&](frmCaixaPagar& form) {
    form.lblFormaDePagamento.ForeColor = frame::kCorDeRecusa;
    Add(form, 4, "40.5");
    EXPECT_EQ(Tenders(form), "4-Cartão de débito 40,50 __/__/____");
    EXPECT_EQ(form.zvcmbFormaDePagamento.ListIndex(), -1);
    EXPECT_EQ(form.zvnumValor.Text(), "0,00");
    EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());
    EXPECT_EQ(form.lblFormaDePagamento.ForeColor(), frame::kCorNormal);
    // Enter in the due date adds, as the button does.
    Choose(form, 6);
    Type(form.zvdtpDataDeVencimento, "22122026\n");
    EXPECT_EQ(Tenders(form),
              "4-Cartão de débito 40,50 __/__/____, 6-A crédito (Fiado) 59,50 22/12/2026");
  });
  module.TakeCalls();
}

TEST_F(TendersTest, RefusalsSayWhyAndLeaveTheTendersAlone) {
  Pay("100", "50", [&](frmCaixaPagar& form) {
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(module.desktop.TakeBox(), "Informe a forma de pagamento.");
    EXPECT_EQ(form.lblFormaDePagamento.ForeColor(), frame::kCorDeRecusa);
    EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());

    for (const char* nothing : {"0", "0,00", ","}) {
      Add(form, 1, nothing);
      EXPECT_EQ(module.desktop.TakeBox(), "Informe o valor pago.");
      EXPECT_EQ(form.lblValor.ForeColor(), frame::kCorDeRecusa);
      EXPECT_EQ(form.lblFormaDePagamento.ForeColor(), frame::kCorNormal);
      EXPECT_TRUE(form.zvnumValor.HasFocus());
      EXPECT_EQ(form.zvnumValor.SelectedText(), form.zvnumValor.Text());
    }
    Choose(form, 1);
    input::Press(form, KeyStroke::Of(Key::kDelete));
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(module.desktop.TakeBox(), "Informe o valor pago.");
    EXPECT_EQ(form.zvnumValor.Text(), "0,00");

    Add(form, 7, "60");
    EXPECT_EQ(module.desktop.TakeBox(),
              "Informe um valor igual ou menor que 50,00, pois é o crédito disponível do cliente.");
    EXPECT_EQ(form.zvnumValor.SelectedText(), "60");
    EXPECT_EQ(form.zvnumCreditoDoCliente.Text(), "50,00");
    EXPECT_EQ(form.lblValor.ForeColor(), frame::kCorDeRecusa);

    EXPECT_EQ(Tenders(form), "");
    EXPECT_EQ(form.zvtxtSaldoDevedorOuTroco.Text(), "100,00");
  });
}

TEST_F(TendersTest, EachTenderAppearsOnce) {
  Pay("100", "50", [&](frmCaixaPagar& form) {
    Add(form, 1, "10");
    Add(form, 1, "20");
    EXPECT_EQ(module.desktop.TakeBox(), "Já existe esta forma de pagamento na grade.");
    EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());
    EXPECT_EQ(form.zvnumValor.Text(), "20");

    // A second tender of credit is refused only after the credit was lowered.
    Add(form, 7, "30");
    Add(form, 7, "5");
    EXPECT_EQ(module.desktop.TakeBox(), "Já existe esta forma de pagamento na grade.");
    EXPECT_EQ(form.zvnumCreditoDoCliente.Text(), "15,00");
    EXPECT_EQ(Tenders(form), "1-Dinheiro 10,00 __/__/____, 7-Crédito do cliente 30,00 __/__/____");
    EXPECT_EQ(form.zvtxtValorPago.Text(), "40,00");
  });
}

TEST_F(TendersTest, TheCreditLimitWarnsAnAdministratorAndRefusesOthers) {
  module.limit = base::ToCurrency(500);
  module.used = base::ToCurrency(450);
  module.available = base::ToCurrency(50);
  const std::string text =
      "A T E N Ç Ã O !\n\nO valor a pagar a crédito (fiado), excede o valor disponível do limite "
      "de crédito.\n\nLimite: 500,00   -   Utilizado: 450,00   -   Disponível: 50,00\n\n";
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 6, "100");
    const std::vector<platform::MessageBox> boxes = module.desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, text + "Selecione outra forma de pagamento.");
    EXPECT_EQ(boxes[0].title, "Caixa - Limite de crédito");
    EXPECT_EQ(Tenders(form), "");
    EXPECT_EQ(form.lblFormaDePagamento.ForeColor(), frame::kCorDeRecusa);
    EXPECT_EQ(form.zvcmbFormaDePagamento.ListIndex(), -1);
    EXPECT_EQ(form.zvnumValor.Text(), "0,00");
    EXPECT_TRUE(form.zvcmbFormaDePagamento.HasFocus());

    Add(form, 6, "50");
    EXPECT_EQ(Tenders(form), "6-A crédito (Fiado) 50,00 22/11/2026");
  });
  module.session.values["Administrador"] = true;
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 6, "100");
    EXPECT_EQ(module.desktop.TakeBox(), text + "A venda será efetuada.");
    EXPECT_EQ(Tenders(form), "6-A crédito (Fiado) 100,00 22/11/2026");
  });
  module.limit = base::Currency();
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 6, "100");
    EXPECT_EQ(Tenders(form), "6-A crédito (Fiado) 100,00 22/11/2026");
  });
  EXPECT_THAT(module.TakeCalls(),
              testing::Contains("RetornarInformacoesDoLimiteDeCredito double 12"));
  module.results["RetornarInformacoesDoLimiteDeCredito"] = 1;
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 6, "100");
    EXPECT_EQ(module.TakeError(), "1205 Banco fora do ar. @ servico");
    EXPECT_EQ(Tenders(form), "");
  });
}

TEST_F(TendersTest, ASaleOnCreditWithoutTheRightNeedsASupervisor) {
  module.session.values["PermissaoDoModuloCaixaEfetuarVendasACreditoFiado"] = false;
  Pay("100", "0", [&](frmCaixaPagar& form) {
    SupervisorAnswers(form, false);
    Add(form, 6, "100");
    EXPECT_EQ(module.desktop.TakeBox(),
              "Usuário não autorizado para efetuar vendas a crédito (fiado).");
    EXPECT_EQ(Tenders(form), "");
    EXPECT_EQ(form.zvnumValor.Text(), "100");
    EXPECT_EQ(form.zvcmbFormaDePagamento.Text(), "6-A crédito (Fiado)");

    SupervisorAnswers(form, true);
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(Tenders(form), "6-A crédito (Fiado) 100,00 22/11/2026");
    EXPECT_EQ(form.Left(), 0);
  });
  module.TakeCalls();
}

TEST_F(TendersTest, AFaultIsReportedUnderTheTagsAsTheyStand) {
  Pay("100", "0", [&](frmCaixaPagar& form) {
    // Only code can write what cannot be read.
    form.zvtxtSaldoDevedorOuTroco.Text = "cem";
    Choose(form, 1);
    EXPECT_EQ(module.TakeError(),
              "13 Incompatibilidade de tipo. @ ZOVA_A_Caixa, frmCaixaPagar, "
              "zvcmbFormaDePagamento_LostFocus, Ponto: 1");
    form.zvnumValor.Text = "99999999999999999999";
    input::Click(form.zvcmdAdicionar);
    EXPECT_EQ(module.TakeError(),
              "6 Valor fora dos limites. @ ZOVA_A_Caixa, frmCaixaPagar, zvcmdAdicionar_Click, "
              "Ponto: 2");
    EXPECT_EQ(Tenders(form), "");
  });
  frmCaixaPagar form;
  EXPECT_THROW(form.Animais("Rex"), base::RuntimeError);
  form.Animais("2");
  form.zvnumCreditoDoCliente.Text = "muito";
  EXPECT_EQ(form.MontarExibirFormulario(), 99);
  EXPECT_EQ(module.TakeError(),
            "13 Incompatibilidade de tipo. @ ZOVA_A_Caixa, frmFichaCompleta, "
            "PreencherzvcmbFormaDePagamento, Ponto: 1");
}

// A scanner is a keyboard that ends with Enter.
TEST_F(TendersTest, AStrayScanRegistersNothing) {
  Pay("100", "0", [&](frmCaixaPagar& form) {
    Add(form, 1, "100");
    for (platform::Control* field : form.TabOrder()) {
      if (field->GetKind() == platform::Kind::kCommandButton) continue;
      input::Focus(*field);
      input::Type(form, "7891234567895\n");
      EXPECT_TRUE(form.IsVisible()) << field->Name();
      form.zvcmbFormaDePagamento.ListIndex = -1;
    }
  });
  EXPECT_TRUE(module.TakeCalls().empty());
}

}  // namespace
}  // namespace checkout
