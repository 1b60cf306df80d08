#include "base/Numbers.h"
#include "frame/servicos/ZOVA_A_Produtos.clsProdutos.h"
#include "siblings/Telas.h"
#include "siblings/frmCadastroDeCodigo.h"

namespace siblings {
namespace {

class clsProdutos final : public TelaComum<servicos::ZOVA_A_Produtos::clsProdutos> {
 public:
  void CodigoInterno(double codigo) override { codigo_ = codigo; }
  void Nome(std::string_view nome) override { nome_ = nome; }
  std::int16_t AbrirFichaDeCadastroDeNCM() override {
    frmCadastroDeCodigo cadastro(kNCMDoProduto, codigo_, "Produto " + base::ToText(codigo_), nome_);
    return cadastro.MontarExibirFormulario();
  }

 private:
  double codigo_ = 0;
  std::string nome_;
};

}  // namespace

TelaNova NovaClsProdutos() {
  return std::make_unique<clsProdutos>();
}

}  // namespace siblings
