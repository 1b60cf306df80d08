#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Text.h"
#include "checkout/frmCaixaPagar.h"
#include "frame/Mensagens.h"
#include "frame/servicos/LinhaDeVenda.h"
#include "frame/servicos/Pagamento.h"
#include "platform/Screens.h"
#include "support/ModuleServices.h"
#include "support/Table.h"

namespace checkout {

namespace input = platform::input;

/// The lines of a sale, each an animal and "1" for a service or "2" for a product.
class Lines final : public base::GradeLida {
 public:
  struct Line {
    std::string animal, kind;
  };
  explicit Lines(std::vector<Line> lines) : lines_(std::move(lines)) {}

  std::int32_t Rows() const override { return static_cast<std::int32_t>(lines_.size()) + 1; }
  std::int32_t Cols() const override { return servicos::linha::kColunas; }
  const std::string& TextMatrix(std::int32_t row, std::int32_t col) const override {
    static const std::string kEmpty;
    if (row == 0) return kEmpty;
    const Line& line = lines_.at(static_cast<std::size_t>(row) - 1);
    return col == servicos::linha::kNomeDoAnimal             ? line.animal
           : col == servicos::linha::kColunaTipoDeLancamento ? line.kind
                                                             : kEmpty;
  }

 private:
  std::vector<Line> lines_;
};

/// A checkout for one sale of customer 12, worked as the operator works it.
class CheckoutTest : public testing::Test {
 protected:
  CheckoutTest() {
    module.session.values["PermissaoDoModuloCaixaEfetuarVendasACreditoFiado"] = true;
  }

  /// Opens a checkout, lets the operator act in it, closes it when they leave it open, and tells
  /// its answer.
  std::int16_t Pay(std::string_view net, std::string_view credit,
                   const std::function<void(frmCaixaPagar&)>& operate) {
    frmCaixaPagar form;
    form.lblCliente.Caption = "Cliente* [ VIP - A ]";
    form.NumeroDaFichaClinica(88);
    form.ApelidoOuNomeFantasiaDoCliente("Ana");
    form.NomeOuRazaoSocialDoCliente("Ana Maria Souza");
    form.CodigoDoCliente(12);
    form.ValorBruto(base::ToCurrency(net) + base::ToCurrency(10));
    form.ValorTotalDeDescontos(base::ToCurrency(10));
    form.ValorLiquido(base::ToCurrency(net));
    form.GradeDeItensDaVendas(lines);
    form.Custo(base::ToCurrency("31,25"));
    form.Comissao(base::ToCurrency("4,5"));
    form.LucroEmValor(base::ToCurrency("20,1"));
    form.LucroEmPercentual(base::ToCurrency("0,2"));
    form.CreditoDoCliente(base::ToCurrency(credit));
    module.desktop.Then([&] {
      operate(form);
      if (form.IsVisible()) input::Close(form);
    });
    return form.MontarExibirFormulario();
  }

  static void Choose(frmCaixaPagar& form, std::int32_t code) {
    const std::int32_t index = form.zvcmbFormaDePagamento.IndexOfData(code);
    ASSERT_EQ(input::Pick(form.zvcmbFormaDePagamento, index), input::Outcome::kDone) << code;
  }
  static void Type(platform::EditBox& field, std::string_view text) {
    ASSERT_EQ(input::Focus(field), input::Outcome::kDone);
    field.SelectAll();
    input::Type(field.OwnerForm(), text);
  }
  static void Add(frmCaixaPagar& form, std::int32_t code, std::string_view value) {
    Choose(form, code);
    Type(form.zvnumValor, value);
    input::Click(form.zvcmdAdicionar);
  }
  /// Types the change and leaves the box.
  static void Change(frmCaixaPagar& form, std::string_view text) {
    Type(form.zvtxtSaldoDevedorOuTroco, text);
    input::Focus(form.zvcmbFormaDePagamento);
  }
  static void SelectRow(frmCaixaPagar& form, std::int32_t row) {
    input::ClickCell(form.msfgGrade, row, 0, platform::MouseButton::kLeft, false);
  }

  /// The tenders as "1-Dinheiro 150,00 __/__/____", joined by ", ".
  static std::string Tenders(const frmCaixaPagar& form) {
    std::vector<std::string> rows;
    for (std::int32_t row = 1; row < form.msfgGrade.Rows(); ++row) {
      const auto cell = [&](std::int32_t col) { return form.msfgGrade.TextMatrix(row, col); };
      if (cell(0).empty()) continue;
      rows.push_back(cell(0) + " " + cell(1) + " " + cell(2));
    }
    return support::Joined(rows);
  }

  support::Module module;
  Lines lines{{{"Rex", "1"}}};
};

}  // namespace checkout
