#pragma once

#include <memory>
#include <string>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/MSFlexGrid.h"
#include "platform/Menu.h"
#include "platform/OptionButton.h"
#include "platform/PictureBox.h"
#include "platform/Toolbar.h"
#include "platform/ZVComboBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVDateBox.h"
#include "platform/ZVFind.h"
#include "platform/ZVTextBox.h"
#include "platform/ZVTheme.h"

namespace ensaio {

/// A modal screen over the other one.
class frmFilho final : public platform::Form {
 public:
  frmFilho();

  platform::ZVTheme ztmTema{*this, "ztmTema"};
  platform::ZVCommandButton zvcmdPerguntar{*this, "zvcmdPerguntar"};
  platform::ZVCommandButton zvcmdFechar{*this, "zvcmdFechar"};
};

/// A screen with a control of each kind that scripts operate, on which the conversation of
/// caixa-roteiro is tried without the cash desk. It keeps a journal of what happened to it in the
/// caption of lblDiario.
class frmEnsaio final : public platform::Form {
 public:
  frmEnsaio();

  platform::ZVTheme ztmTema{*this, "ztmTema"};
  platform::Label lblDiario{*this, "lblDiario"};
  platform::ZVTextBox zvtxtNome{*this, "zvtxtNome"};
  platform::ZVDateBox zvdtpData{*this, "zvdtpData"};
  platform::ZVFind zvfBusca{*this, "zvfBusca"};
  platform::ZVComboBox zvcmbLista{*this, "zvcmbLista"};
  platform::OptionButton optTipo1{*this, "optTipo(1)"};
  platform::OptionButton optTipo2{*this, "optTipo(2)"};
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::ZVCommandButton zvcmdEsperar{*this, "zvcmdEsperar"};
  platform::ZVCommandButton zvcmdCongelar{*this, "zvcmdCongelar"};
  platform::ZVCommandButton zvcmdAguardarArquivo{*this, "zvcmdAguardarArquivo"};
  platform::ZVCommandButton zvcmdServico{*this, "zvcmdServico"};
  platform::ZVCommandButton zvcmdErro{*this, "zvcmdErro"};
  platform::ZVCommandButton zvcmdTecla{*this, "zvcmdTecla"};
  platform::ZVCommandButton zvcmdDesligado{*this, "zvcmdDesligado"};
  platform::ZVCommandButton zvcmdVisualizar{*this, "zvcmdVisualizar"};
  platform::ZVCommandButton zvcmdImprimir{*this, "zvcmdImprimir"};
  platform::PictureBox picOculto{*this, "picOculto"};
  platform::ZVTextBox zvtxtOculto{picOculto, "zvtxtOculto"};
  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};
  platform::Toolbar tbMenu{*this, "tbMenu"};
  platform::MenuItem mnuPrimeiro{*this, "mnuPrimeiro", "Primeiro"};
  platform::MenuItem mnuSegundo{*this, "mnuSegundo", "Segundo"};
  platform::MenuItem mnuFechado{*this, "mnuFechado", "Fechado"};
  platform::Menu mnuPopup{*this, "mnuPopup", {&mnuPrimeiro, &mnuSegundo, &mnuFechado}};

 private:
  void MontarControles();
  void LigarEventos();
  void Anotar(const std::string& oQue);
  bool Perguntar(const std::string& texto);
  void zvcmdEsperar_Click();
  void zvcmdCongelar_Click();
  void zvcmdAguardarArquivo_Click();
  void zvcmdServico_Click();
  void zvcmdVisualizar_Click();
  void tbMenu_ButtonClick(const platform::ToolbarButton& botao);
};

}  // namespace ensaio
