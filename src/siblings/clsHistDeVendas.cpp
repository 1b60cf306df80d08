#include <string>

#include "frame/servicos/ZOVA_A_ClientHist.clsHistDeVendas.h"
#include "siblings/Telas.h"
#include "siblings/frmHistoricoDeVendas.h"

namespace siblings {
namespace {

class clsHistDeVendas final : public TelaDeCliente<servicos::ZOVA_A_ClientHist::clsHistDeVendas> {
 public:
  void DataInicialDoHistorico(std::string_view data) override { dataInicial_ = data; }
  void AbrirFichaExibicao() override {
    frmHistoricoDeVendas historico(cliente_, dataInicial_);
    historico.MontarExibirFormulario();
  }

 private:
  std::string dataInicial_;
};

}  // namespace

TelaNova NovaClsHistDeVendas() {
  return std::make_unique<clsHistDeVendas>();
}

}  // namespace siblings
