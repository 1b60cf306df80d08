#include "siblings/RegistrarTelas.h"

#include "frame/servicos/ZOVA_A_ClientAnim.clsClientAnim.h"
#include "frame/servicos/ZOVA_A_ClientHist.clsHistDeVendas.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_A_Orcamentos.clsOrcamentos.h"
#include "frame/servicos/ZOVA_A_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "siblings/Telas.h"

namespace siblings {

void RegistrarTelas() {
  using namespace servicos;
  Registrar(ZOVA_A_ClientAnim::clsClientAnim::kIdentificador, NovaClsClientAnim);
  Registrar(ZOVA_A_ClientHist::clsHistDeVendas::kIdentificador, NovaClsHistDeVendas);
  Registrar(ZOVA_A_EfeitosDeTela::clsFundoEscuro::kIdentificador, NovaClsFundoEscuro);
  Registrar(ZOVA_A_MsgErro::clsMensagem::kIdentificador, NovaClsMensagem);
  Registrar(ZOVA_A_Orcamentos::clsOrcamentos::kIdentificador, NovaClsOrcamentos);
  Registrar(ZOVA_A_Produtos::clsProdutos::kIdentificador, NovaClsProdutos);
  Registrar(ZOVA_A_RelFin::clsRelFin::kIdentificador, NovaClsRelFin);
}

}  // namespace siblings
