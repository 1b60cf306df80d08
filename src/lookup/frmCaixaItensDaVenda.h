#pragma once

#include <cstdint>
#include <string_view>

#include "base/Record.h"
#include "frame/Lista.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace lookup {

/// The lines of a past sale, to be looked at. Its opener calls Grade_Configurar, Grade_Preencher
/// and Grade_Classificar, in this order, and shows it.
class frmCaixaItensDaVenda : public platform::Form {
 public:
  frmCaixaItensDaVenda();

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblNumeroDaVenda{*this, "lblNumeroDaVenda"};
  platform::ZVTextBox zvtxtNumeroDaVenda{*this, "zvtxtNumeroDaVenda"};
  platform::Label lblDadosDoNomeDoCliente{*this, "lblDadosDoNomeDoCliente"};
  platform::ZVTextBox zvtxDadosDoNomeDoCliente{*this, "zvtxDadosDoNomeDoCliente"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblResultadoDaSelecao{picRodape, "lblResultadoDaSelecao"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::Shape lshpObj{*this, "lshpObj"};
  platform::ImageList ilClassificacaoDaGrade{
      *this,
      "ilClassificacaoDaGrade",
      {std::string(frame::kClassificacaoCrescente), std::string(frame::kClassificacaoDecrescente)}};

  // `falha` becomes 1 after an error that the operator has been told of.

  /// Empties the list and gives it its columns, in the size of letters that the settings file has;
  /// one without is given it.
  void Grade_Configurar(std::int16_t& falha);
  void Grade_Preencher(base::RecordSet& itens, std::int16_t& falha);
  void Grade_Classificar(std::int16_t coluna, bool alternar, std::int16_t& falha);

 private:
  frame::Lista lista_;
};

/// Reads the lines of a sale and shows them until the operator leaves; a sale without lines, or a
/// failure, is told instead. `cliente` says whose they are.
void ExibirItensDaVenda(double numeroDaVenda, std::string_view cliente);

}  // namespace lookup
