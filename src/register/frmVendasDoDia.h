#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Lista.h"
#include "frame/PainelDeMensagem.h"
#include "platform/Form.h"
#include "platform/ImageList.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace registers {

/// What one of the screens that list the sales of the day differs by from the others.
struct VendasDoDia {
  std::string_view formulario, titulo;
  std::string_view situacao;                ///< Which sales: servicos::kEfetuada or kCancelada.
  bool tituloAntigo = false;                ///< The captions of columns 0 and 10.
  bool enviaHome = false;                   ///< An empty list sends the keys shift and Home.
  std::string_view comando, legenda, dica;  ///< The button of what the screen is for.
  std::string_view dicaFechar;
};

/// The columns of the list that the screens read.
enum ColunaDaVenda : std::int32_t {
  kColunaNumero = 0,
  kColunaData = 1,
  kColunaHora = 2,
  kColunaCliente = 4,
  kColunaLiquido = 7,
  kColunaChaveSAT = 8,
  kColunaRecebido = 9,
  kColunaCodigoDoCliente = 10,
  kColunaNomeDoCliente = 11,
  kColunaEndereco = 12,
  kColunaCanais = 13,
};

/// The sales of the day on the selected register, one of which the operator does something with.
/// A number, or a part of the customer's name, typed above the list finds a sale in it.
class frmVendasDoDia : public platform::Form {
 public:
  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblLocalizar{*this, "lblLocalizar"};
  platform::ZVTextBox zvtxtLocalizar{*this, "zvtxtLocalizar"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::Label lblResultadoDaSelecao{picRodape, "lblResultadoDaSelecao"};
  platform::ZVCommandButton zvcmdExibirItensDaVenda{picRodape, "zvcmdExibirItensDaVenda"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::ZVCommandButton zvcmdComando;
  platform::Shape lshpObj{*this, "lshpObj"};
  platform::ImageList ilClassificacaoDaGrade{
      *this,
      "ilClassificacaoDaGrade",
      {std::string(frame::kClassificacaoCrescente), std::string(frame::kClassificacaoDecrescente)}};

  /// Lists the sales and shows the form until the operator is done. 0, or 1 after a fault of its
  /// own, which has been reported.
  std::int16_t MontarExibirFormulario();

 protected:
  explicit frmVendasDoDia(const VendasDoDia& tela);

  /// The places of all controls, those of `abaixo` below the list, which leaves `altura` twips.
  platform::Layout Desenho(std::int32_t altura = 0,
                           const std::vector<platform::Place>& abaixo = {});

  /// The sale that the operator means; empty cells when the list is empty.
  std::string DaVenda(ColunaDaVenda coluna) const { return lista_.Selecionado(coluna); }
  /// Its number, by the loose conversion; the operator is told when there is no sale, or none that
  /// is what they typed.
  bool HaVenda(double& numero);
  /// "Cancelada" in place of the net value of that sale.
  void AtualizaGrade();

  /// What Enter does once the sale is found.
  virtual void Encontrada() = 0;

 private:
  void PesquisarVenda();
  void Grade_Preencher(base::RecordSet& vendas);
  void zvcmdExibirItensDaVenda_Click();
  void Localizar(std::int32_t apartir, std::int32_t passo);
  void zvtxtLocalizar_Edited();
  void msfgGrade_SelChange();
  void zvtxtLocalizar_KeyDown(platform::KeyStroke& tecla);
  bool Corresponde(std::int32_t linha) const;
  bool EAProcurada(std::int32_t linha) const;
  bool EDoCliente(std::int32_t linha) const;

  const VendasDoDia& tela_;
  bool localizando_ = false;
  frame::Lista lista_;
};

}  // namespace registers
