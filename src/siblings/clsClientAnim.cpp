#include "base/Numbers.h"
#include "frame/servicos/ZOVA_A_ClientAnim.clsClientAnim.h"
#include "siblings/Telas.h"
#include "siblings/frmCadastroDeCodigo.h"

namespace siblings {
namespace {

class clsClientAnim final : public TelaDeCliente<servicos::ZOVA_A_ClientAnim::clsClientAnim> {
 public:
  std::int16_t AbrirFichaDeCadastroDeCodigoIBGEDoMunicipio() override {
    frmCadastroDeCodigo cadastro(kCodigoIBGEDoMunicipio, cliente_.codigo,
                                 base::ToText(cliente_.codigo) + " - " + cliente_.apelido,
                                 cliente_.nome);
    return cadastro.MontarExibirFormulario();
  }
};

}  // namespace

TelaNova NovaClsClientAnim() {
  return std::make_unique<clsClientAnim>();
}

}  // namespace siblings
