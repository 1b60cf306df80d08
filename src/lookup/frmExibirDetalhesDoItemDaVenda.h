#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/GradeLida.h"
#include "base/Record.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace lookup {

/// The details of the line selected in a grid of sale lines: from the grid, or from the record that
/// the line was entered in elsewhere.
class frmExibirDetalhesDoItemDaVenda final : public platform::Form {
 public:
  static constexpr std::int16_t kNaoExibido = 99;

  frmExibirDetalhesDoItemDaVenda();

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblLabel0{*this, "lblLabel(0)"};
  platform::ZVTextBox zvtxtText0{*this, "zvtxtText(0)"};
  platform::Label lblLabel1{*this, "lblLabel(1)"};
  platform::ZVTextBox zvtxtText1{*this, "zvtxtText(1)"};
  platform::Label lblLabel2{*this, "lblLabel(2)"};
  platform::ZVTextBox zvtxtText2{*this, "zvtxtText(2)"};
  platform::Label lblLabel3{*this, "lblLabel(3)"};
  platform::ZVTextBox zvtxtText3{*this, "zvtxtText(3)"};
  platform::Label lblLabel4{*this, "lblLabel(4)"};
  platform::ZVTextBox zvtxtText4{*this, "zvtxtText(4)"};
  platform::Label lblLabel5{*this, "lblLabel(5)"};
  platform::ZVTextBox zvtxtText5{*this, "zvtxtText(5)"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::Shape lshpObj{*this, "lshpObj"};

  /// The grid of a sale; it outlives the form.
  void GradeDeItensDaVendas(const platform::MSFlexGrid& grade) { grade_ = &grade; }
  /// Shows the details until the operator leaves: 0. kNaoExibido when they could not be read, which
  /// has been told.
  void MontarExibirFormulario(std::int16_t& resultado);

 private:
  enum class Origem { kGrade, kServicosEfetuados, kProdutosReservados };
  struct Caso;
  struct Campo {
    platform::Label& rotulo;
    platform::ZVTextBox& texto;
  };

  /// The record that the line was entered in; null when it is not there or cannot be read.
  base::RecordSetPtr PreencherServicosEfetuados(const std::string& lancamento);
  base::RecordSetPtr PreencherProdutosReservados(const std::string& lancamento);

  const Caso& CasoDaLinha() const;
  /// False without the record that the case wants.
  bool Preencher(const Caso& caso);
  const std::string& Celula(std::int32_t coluna) const;

  /// In their order.
  std::array<Campo, 6> campos_{{{lblLabel0, zvtxtText0},
                                {lblLabel1, zvtxtText1},
                                {lblLabel2, zvtxtText2},
                                {lblLabel3, zvtxtText3},
                                {lblLabel4, zvtxtText4},
                                {lblLabel5, zvtxtText5}}};
  const platform::MSFlexGrid* grade_ = nullptr;
};

}  // namespace lookup
