#pragma once

#include "frame/servicos/ZOVA_A_ClientAnim.clsClientAnim.h"
#include "frame/servicos/ZOVA_A_ClientHist.clsHistDeVendas.h"
#include "frame/servicos/ZOVA_A_EfeitosDeTela.clsFundoEscuro.h"
#include "frame/servicos/ZOVA_A_MsgErro.clsMensagem.h"
#include "frame/servicos/ZOVA_A_Orcamentos.clsOrcamentos.h"
#include "frame/servicos/ZOVA_A_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCreditosDoCliente.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosDoCliente.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "frame/servicos/ZOVA_N_OSParaBD.clsOSExportarRegistros.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "frame/servicos/ZOVA_N_SO.clsObterVersaoDoSO.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"

/// The classes of the contract, each named here once: whoever has something for every one of them
/// goes through these lists. What a class has of members stands in its own header.
namespace servicos {

template <class... Classes>
struct Lista {};

/// Over the database.
using ServicosDeNegocio =
    Lista<ZOVA_N_Administrativo::clsAdministrativo, ZOVA_N_Caixa::clsCaixa,
          ZOVA_N_Caixa::clsCreditosDoCliente, ZOVA_N_Caixa::clsDebitosDoCliente,
          ZOVA_N_Caixa::clsDebitosVencCliente, ZOVA_N_Caixa::clsServicosEProdutos,
          ZOVA_N_Caixas::clsCaixas, ZOVA_N_ClientAnim::clsAnimais, ZOVA_N_ClientAnim::clsClientes,
          ZOVA_N_Empresa::clsEmpresa, ZOVA_N_Funcionarios::clsFuncionarios, ZOVA_N_Login::clsLogin,
          ZOVA_N_OSParaBD::clsOSExportarRegistros, ZOVA_N_Produtos::clsProdutos,
          ZOVA_N_RelFin::clsRelFin, ZOVA_N_Servicos::clsServicos, ZOVA_N_TipoDeServ::clsTiposDeServ,
          ZOVA_N_SO::clsObterVersaoDoSO>;
/// What opens for the operator.
using TelasIrmas =
    Lista<ZOVA_A_ClientAnim::clsClientAnim, ZOVA_A_ClientHist::clsHistDeVendas,
          ZOVA_A_Orcamentos::clsOrcamentos, ZOVA_A_Produtos::clsProdutos, ZOVA_A_RelFin::clsRelFin>;
/// What dims the screens and shows errors.
using Efeitos = Lista<ZOVA_A_EfeitosDeTela::clsFundoEscuro, ZOVA_A_MsgErro::clsMensagem>;

}  // namespace servicos
