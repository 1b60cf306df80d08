#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Form.h"
#include "platform/Label.h"
#include "platform/PictureBox.h"
#include "platform/ZVCommandButton.h"
#include "platform/ZVMaskedBox.h"
#include "platform/ZVTheme.h"
#include "siblings/CodigosFiscais.h"
#include "siblings/dados/clsCadastroFiscal.h"

namespace siblings {

/// One of the two codes that a fiscal coupon cannot do without.
struct CadastroDeCodigo {
  std::string_view formulario, titulo, explicacao, rotulo, mascara, vazio;
  Julgamento (*julgar)(std::string_view digitos);
  std::int16_t (dados::clsCadastroFiscal::*selecionar)(double codigo);
  std::int16_t (*registrar)(dados::clsCadastroFiscal& servico, double codigo,
                            std::string_view digitos);
};

inline constexpr CadastroDeCodigo kCodigoIBGEDoMunicipio{
    .formulario = "frmCodigoIBGEDoMunicipio",
    .titulo = "Código IBGE do município",
    .explicacao =
        "O documento fiscal precisa do código do município em que o cliente mora: 7 "
        "dígitos, os dois primeiros do estado.",
    .rotulo = "Código IBGE do município*",
    .mascara = "#######",
    .vazio = "Informe o código IBGE do município.",
    .julgar = JulgarMunicipio,
    .selecionar = &dados::clsCadastroFiscal::SelecionarMunicipio,
    .registrar = [](dados::clsCadastroFiscal& servico, double codigo, std::string_view digitos) {
      return servico.RegistrarMunicipio(codigo, digitos);
    }};

inline constexpr CadastroDeCodigo kNCMDoProduto{
    .formulario = "frmNCMDoProduto",
    .titulo = "NCM do produto",
    .explicacao =
        "O documento fiscal precisa da NCM do produto: 8 dígitos, como estão na nota "
        "fiscal do fornecedor.",
    .rotulo = "NCM*",
    .mascara = "####.##.##",
    .vazio = "Informe a NCM do produto.",
    .julgar = JulgarNCM,
    .selecionar = &dados::clsCadastroFiscal::SelecionarNCM,
    .registrar = [](dados::clsCadastroFiscal& servico, double codigo, std::string_view digitos) {
      return servico.RegistrarNCM(codigo, digitos);
    }};

/// Registers a fiscal code that a sale has missed: of a customer's municipality, or of a product.
class frmCadastroDeCodigo final : public platform::Form, private platform::Observer {
 public:
  enum : std::int16_t { kCadastrado = 0, kFalha = 1, kSemCadastrar = 99 };

  /// `codigo` is the customer's or the product's; `quem` and `nome` tell the operator who that is.
  frmCadastroDeCodigo(const CadastroDeCodigo& cadastro, double codigo, std::string_view quem,
                      std::string_view nome);

  platform::ZVTheme zvTheme{*this, "zvTheme"};
  platform::PictureBox picIdentificacao{*this, "picIdentificacao"};
  platform::Label lblQuem{picIdentificacao, "lblQuem"};
  platform::Label lblNome{picIdentificacao, "lblNome"};
  platform::Label lblExplicacao{*this, "lblExplicacao"};
  platform::Label lblCodigo{*this, "lblCodigo"};
  platform::ZVMaskedBox zvmskCodigo{*this, "zvmskCodigo"};
  platform::Label lblReconhecido{*this, "lblReconhecido"};
  platform::PictureBox picRodape{*this, "picRodape"};
  platform::ZVCommandButton zvcmdCancelar{picRodape, "zvcmdCancelar"};
  platform::ZVCommandButton zvcmdSalvar{picRodape, "zvcmdSalvar"};

  /// Shows the form until the code is registered or the operator leaves: kCadastrado,
  /// kSemCadastrar, or kFalha when it could not come up, which has been reported.
  std::int16_t MontarExibirFormulario();

 private:
  void zvcmdSalvar_Click();
  void zvcmdCancelar_Click();

  /// Tells what the digits mean, as they are typed.
  void Changed(platform::Object& object, const platform::PropertyBase& property) override;
  bool LerCodigoAtual();
  /// Whether the code may be registered as it stands.
  bool Validar();

  const CadastroDeCodigo& cadastro_;
  double codigo_;
  std::int16_t resultado_ = kSemCadastrar;
};

}  // namespace siblings
