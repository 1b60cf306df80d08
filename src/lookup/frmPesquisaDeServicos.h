#pragma once

#include <optional>

#include "lookup/frmPesquisa.h"
#include "platform/ZVComboBox.h"

namespace lookup {

/// The pick list of services, of one type or of all; prices are consulted from it too.
class frmPesquisaDeServicos final : public frmPesquisa {
 public:
  frmPesquisaDeServicos();

  platform::Label lblTiposDeServicos{*this, "lblTiposDeServicos"};
  platform::ZVComboBox zvcmbTiposDeServicos{*this, "zvcmbTiposDeServicos"};

  /// Prices are only looked at: the opener takes no choice from the list.
  void FormularioDeConsultaDePreco(bool consulta) { formularioDeConsultaDePreco_ = consulta; }
  /// The dialog reads the types itself as it loads; otherwise its opener fills them in.
  void EfetuarOPreenchimentoDaComboboxTiposDeServicos(bool efetuar) { preencherTipos_ = efetuar; }
  /// Takes over the types of another screen, and the chosen one.
  void CopiarTiposDeServicos(const platform::ZVComboBox& tipos);

  /// The chosen service.
  ItemEncontrado Servico() const { return ServicoDe(*Escolhido()); }

 private:
  void PreencherComboboxTiposDeServicos();
  void zvcmbTiposDeServicos_Click();
  void Carregar() override;
  platform::Control& PrimeiroCampo() override;
  bool PodePesquisar() override;
  Selecao Selecionar(const std::string& texto, frame::Espera& espera) override;
  std::string NadaEncontrado(const std::string& texto) const override;

  [[maybe_unused]] bool formularioDeConsultaDePreco_ = false;
  bool preencherTipos_ = false;
  bool SuprimirProximoClickDoTipoDeServico = false;
};

/// The one of several services that the operator picks from a list with these types; nothing when
/// they leave it.
std::optional<ItemEncontrado> EscolherServico(const Selecao& servicos,
                                              const platform::ZVComboBox& tipos);

}  // namespace lookup
