#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Record.h"
#include "frame/Lista.h"
#include "frame/PainelDeMensagem.h"
#include "frame/servicos/Servico.h"
#include "lookup/ItemEncontrado.h"
#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/Layout.h"
#include "platform/MSFlexGrid.h"
#include "platform/PictureBox.h"
#include "platform/Shape.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVFind.h"
#include "platform/ZVTheme.h"

namespace lookup {

/// What one pick list differs by from the others.
struct Pesquisa {
  std::string_view formulario, titulo;
  std::string_view campo, rotulo, legenda;  ///< The find field, and its label with the caption.
  std::string_view rotina;                  ///< The search, in the location of an error.
  std::string_view formularioDaGrade;       ///< The form that the grid's locations name.
  std::string_view formularioDoCampo;       ///< The form that the find field's location names.
  std::string_view registro, registros;     ///< What is listed, one and several.
  std::span<const frame::Coluna> colunas;   ///< Their numbers are known to every caller.
};

/// What a selection found.
struct Selecao {
  base::RecordSetPtr registros;  ///< Null after a fault, which has been told.
  std::string aviso;             ///< What the service says of a selection that is not whole.
};

/// A list from which the operator picks one of several records: filled by its opener, or by a
/// search of its own. A click on a row or Enter is the choice; the opener asks RegistroSelecionado
/// and reads the row from the grid, by column, before it unloads the dialog.
class frmPesquisa : public platform::Form {
 public:
  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::Label lblCampo;
  platform::ZVFind zvfndCampo;
  platform::MSFlexGrid msfgGrade{*this, "msfgGrade"};
  platform::PictureBox picRodape{*this, "picRodape"};
  /// How many there are, or that the list is not whole.
  platform::Label lblAvisoDaLista{picRodape, "lblAvisoDaLista"};
  platform::ZVCommandButton zvcmdFechar{picRodape, "zvcmdFechar"};
  platform::Shape lshpObj{*this, "lshpObj"};
  platform::PictureBox picMensagem{*this, "picMensagem"};
  platform::Label lblMensagem{picMensagem, "lblMensagem"};

  // `falha` becomes 1 after an error that the operator has been told of.

  /// Empties the list; before PreencherGrade.
  void ConfigurarGrade(std::int16_t& falha);
  /// Lists the records; null for none. `aviso` is what the service says of a list that is not
  /// whole.
  void PreencherGrade(const base::RecordSetPtr& registros, std::int16_t& falha,
                      std::string_view aviso = {});
  bool RegistroSelecionado() const { return registroSelecionado_; }
  /// Shows what was found until the operator has picked one or left; whether one was picked. The
  /// row can be read until the dialog is unloaded.
  bool Escolher(const Selecao& encontrados);
  void CentralizarpicMensagem() { painel_.Centralizar(); }
  void ExibirOcultarpicMensagem(bool exibir) { painel_.ExibirOcultar(exibir, false); }

  /// What a service says of a selection that leaves out some of what it found; empty for a whole
  /// one. Only long selections are asked for it.
  static std::string AvisoDaSelecao(servicos::ServicoDeNegocio& servico,
                                    const base::RecordSet& registros);

  /// The chosen row as a record of texts under the names of its columns' fields, its cursor on it;
  /// an empty cell is a null.
  base::RecordSetPtr Escolhido() const;

 protected:
  explicit frmPesquisa(const Pesquisa& pesquisa);

  /// The places of all controls, those of `acima` beside the find field that begins at
  /// `inicioDoCampo`.
  platform::Layout Desenho(const std::vector<platform::Place>& acima = {},
                           std::int32_t inicioDoCampo = 240);
  /// Where the keyboard begins in a list that holds nothing yet.
  virtual platform::Control& PrimeiroCampo() { return zvfndCampo; }
  /// 1 keeps the operator from choosing the selected row, who has been told.
  virtual std::int16_t ValidarCampos() { return 0; }
  /// Whether there is all that a search needs; the operator is told what is missing.
  virtual bool PodePesquisar() { return true; }

  virtual Selecao Selecionar(const std::string& texto, frame::Espera& espera) = 0;
  virtual std::string NadaEncontrado(const std::string& texto) const = 0;

  /// What a selection gave, where `falhou` has it.
  static Selecao Resultado(servicos::ServicoDeNegocio& servico, bool falhou, frame::Espera& espera);

  /// What one dialog does besides as it loads.
  virtual void Carregar() {}

 private:
  void Form_Load();
  void Form_Activate();
  void Form_Unload(bool& recusar);
  void msfgGrade_Click();
  void zvfndCampo_Click();
  void zvcmdFechar_Click();
  std::string Quantidade() const;
  /// Whether the search found anything.
  bool Pesquisar();

  const Pesquisa& pesquisa_;
  frame::PainelDeMensagem painel_{*this, picMensagem};
  frame::Lista lista_;
  bool registroSelecionado_ = false;
  /// Keeps the find field from searching while the dialog itself writes.
  bool suprimirProximoClick_ = false;
};

/// The item that the operator picks from a list over the darkened host, which is unloaded then;
/// nothing when they leave it. `ler` gives the item of the chosen row.
std::optional<ItemEncontrado> EscolherItem(frmPesquisa& lista, const Selecao& encontrados,
                                           const std::function<ItemEncontrado()>& ler);

}  // namespace lookup
