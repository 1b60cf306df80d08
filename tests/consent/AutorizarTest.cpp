#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "consent/Autorizar.h"
#include "consent/frmCaixaAutorizar.h"
#include "frame/Mensagens.h"
#include "platform/Screens.h"
#include "support/ModuleServices.h"

namespace consent {
namespace {

using platform::Icon;
using platform::Key;
using platform::KeyStroke;
using testing::ElementsAre;
namespace input = platform::input;

class AutorizarTest : public testing::Test {
 protected:
  /// Opens a dialog, lets the operator act in it, closes what they leave open, and tells the
  /// answer.
  std::int16_t Open(const Autorizacao& autorizacao,
                    const std::function<void(frmCaixaAutorizar&)>& operate) {
    frmCaixaAutorizar form(autorizacao);
    module.desktop.Then([&] {
      operate(form);
      if (form.IsVisible()) input::Close(form);
    });
    std::int16_t answer = -1;
    form.MontarExibirFormulario(answer);
    return answer;
  }
  static void Fill(frmCaixaAutorizar& form, std::string_view user, std::string_view password) {
    input::Focus(form.zvtxtUsuario);
    input::Type(form, user);
    input::Focus(form.zvtxtSenha);
    input::Type(form, password);
  }
  static void FillAndConfirm(frmCaixaAutorizar& form) {
    Fill(form, "marta", "segredo");
    input::Click(form.zvcmdOk);
  }

  support::Module module;
};

// Each dialog looks at its own right of the supervisor and at no other.
TEST_F(AutorizarTest, EachDialogAsksForItsOwnRight) {
  struct Member {
    const Autorizacao& autorizacao;
    const char* right;
  };
  const Member family[] = {
      {kAutorizarDesconto, "Administrador"},
      {kAutorizarSaidasDoCaixa, "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas"},
      {kAutorizarEfetuarVendasACreditoFiado, "PermissaoDoModuloCaixaEfetuarVendasACreditoFiado"},
      {kAutorizarCancelarVendas, "PermissaoDoModuloCaixaCancelarVendas"},
      {kAutorizarDesfazerCancelamento, "PermissaoDoModuloCaixaCancelarVendas"},
  };
  for (const Member& member : family) {
    SCOPED_TRACE(member.autorizacao.formulario);
    for (const Member& each : family) module.supervisor[each.right] = false;
    module.supervisor[member.right] = true;
    EXPECT_EQ(Open(member.autorizacao, FillAndConfirm), 0);
    for (auto& [right, held] : module.supervisor) held = right != member.right;
    EXPECT_EQ(Open(member.autorizacao, FillAndConfirm), 99);
    EXPECT_EQ(module.desktop.TakeBox(), member.autorizacao.recusa);
  }
}

TEST_F(AutorizarTest, EveryOtherWayOutIsARefusal) {
  module.supervisor["Administrador"] = true;
  const auto answer = [&](auto leave) { return Open(kAutorizarDesconto, leave); };
  EXPECT_EQ(answer([](frmCaixaAutorizar& form) { input::Close(form); }), 99);
  EXPECT_EQ(answer([](frmCaixaAutorizar& form) { input::Click(form.zvcmdFechar); }), 99);
  EXPECT_EQ(answer([](frmCaixaAutorizar& form) {
              Fill(form, "marta", "segredo");
              input::Press(form, KeyStroke::Of(Key::kEscape));
            }),
            99);
  EXPECT_EQ(module.operations, 0);

  // The screen lives while the password is verified: who leaves then has given no consent.
  const auto leaveMeanwhile = [&](auto leave) {
    return answer([&](frmCaixaAutorizar& form) {
      module.meanwhile["Autenticar"] = [&] {
        EXPECT_EQ(input::Click(form.zvcmdOk), input::Outcome::kDropped);
        leave(form);
      };
      FillAndConfirm(form);
      EXPECT_FALSE(form.IsVisible());
    });
  };
  EXPECT_EQ(leaveMeanwhile([](frmCaixaAutorizar& form) { input::Close(form); }), 99);
  EXPECT_EQ(leaveMeanwhile([](frmCaixaAutorizar& form) { input::Click(form.zvcmdFechar); }), 99);
  EXPECT_EQ(leaveMeanwhile([](frmCaixaAutorizar&) {}), 0);
}

/// Fails as soon as the observed object changes.
class Failing final : public platform::Observer {
 public:
  void Changed(platform::Object&, const platform::PropertyBase&) override {
    throw base::RuntimeError(base::Fault::kInvalidArgument);
  }
};

// Two of the tags name another form than their own.
TEST_F(AutorizarTest, TagsNameTheFormsThatTheyName) {
  const auto locationOfOpening = [&](const Autorizacao& autorizacao) {
    frmCaixaAutorizar form(autorizacao);
    module.desktop.Then([] { throw base::RuntimeError(base::Fault::kInvalidArgument); });
    std::int16_t answer = 0;
    form.MontarExibirFormulario(answer);
    EXPECT_EQ(answer, 99);
    return module.TakeError();
  };
  EXPECT_EQ(
      locationOfOpening(kAutorizarSaidasDoCaixa),
      "5 Argumento inválido. @ ZOVA_A_Caixa, frmCaixaAutorizarfrmCaixaAutorizarSaidasDoCaixa, "
      "MontarExibirFormulario, Ponto: 2");
  EXPECT_EQ(locationOfOpening(kAutorizarDesconto),
            "5 Argumento inválido. @ ZOVA_A_Caixa, frmCaixaAutorizarDesconto, "
            "MontarExibirFormulario, Ponto: 2");

  Failing failing;
  Open(kAutorizarDesconto, [&](frmCaixaAutorizar& form) {
    form.lshpObj.Observe(failing);
    form.ResizeTo(9000, 4000);
    form.lshpObj.Unobserve(failing);
  });
  EXPECT_EQ(module.TakeError(),
            "5 Argumento inválido. @ ZOVA_A_Caixa, frmCaixaAutorizarEfetuarVendasACreditoFiado, "
            "Form_Resize, Ponto: 1");
}

TEST_F(AutorizarTest, TheCallerIsOutOfTheWayMeanwhileAndBackAfterwards) {
  module.supervisor["Administrador"] = true;
  platform::Form caller("frmQualquer");
  caller.Left = 600;
  caller.Width = 3000;
  caller.Height = 2000;
  const auto place = [&] {
    return std::vector<int>{caller.Left(), caller.Width(), caller.Height()};
  };
  std::vector<int> meanwhile;
  const auto ask = [&](Chamador chamador, bool consent) {
    module.desktop.Then([&, consent] {
      auto& form = *static_cast<frmCaixaAutorizar*>(platform::screens::Front());
      meanwhile = place();
      consent ? FillAndConfirm(form) : static_cast<void>(input::Close(form));
    });
    const bool answer = Autorizar(kAutorizarDesconto, caller, chamador);
    EXPECT_EQ(answer, consent);
    EXPECT_THAT(place(), ElementsAre(600, 3000, 2000));
  };
  for (const bool consent : {true, false}) {
    ask(Chamador::kAfastaSe, consent);
    EXPECT_LT(meanwhile[0], -100'000);
    EXPECT_THAT(meanwhile, ElementsAre(testing::_, 3000, 2000));
    ask(Chamador::kDesaparece, consent);
    EXPECT_THAT(meanwhile, ElementsAre(600, 0, 0));
    ask(Chamador::kFica, consent);
    EXPECT_THAT(meanwhile, ElementsAre(600, 3000, 2000));
  }
}

}  // namespace
}  // namespace consent
