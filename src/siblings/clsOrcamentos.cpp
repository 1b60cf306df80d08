#include "frame/servicos/ZOVA_A_Orcamentos.clsOrcamentos.h"
#include "siblings/Telas.h"
#include "siblings/frmOrcamentos.h"

namespace siblings {
namespace {

class clsOrcamentos final : public TelaDeCliente<servicos::ZOVA_A_Orcamentos::clsOrcamentos> {
 public:
  void CodigoDoAnimal(std::int32_t codigo) override { animal_.codigo = codigo; }
  void NomeDoAnimal(std::string_view nome) override { animal_.nome = nome; }
  void AbrirFicha() override {
    frmOrcamentos orcamentos(cliente_, animal_);
    orcamentos.MontarExibirFormulario();
  }

 private:
  Animal animal_;
};

}  // namespace

TelaNova NovaClsOrcamentos() {
  return std::make_unique<clsOrcamentos>();
}

}  // namespace siblings
