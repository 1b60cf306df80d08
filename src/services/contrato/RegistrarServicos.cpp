#include "services/contrato/RegistrarServicos.h"

#include <utility>

#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "frame/servicos/ZOVA_N_Caixa.clsServicosEProdutos.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "frame/servicos/ZOVA_N_Empresa.clsEmpresa.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_Login.clsLogin.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_RelFin.clsRelFin.h"
#include "frame/servicos/ZOVA_N_SO.clsObterVersaoDoSO.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"
#include "services/Banco.h"
#include "services/contrato/Fabricas.h"
#include "siblings/dados/clsCadastroFiscal.h"
#include "siblings/dados/clsDocumentos.h"
#include "siblings/dados/clsHistorico.h"
#include "siblings/dados/clsOrcamentos.h"

namespace services {
namespace {

struct Entry {
  std::string_view identifier;
  ServicoNovo (*make)(const std::shared_ptr<Banco>&);
};

constexpr Entry kEntries[] = {
    {servicos::ZOVA_N_Administrativo::clsAdministrativo::kIdentificador, NovoClsAdministrativo},
    {servicos::ZOVA_N_ClientAnim::clsAnimais::kIdentificador, NovoClsAnimais},
    {servicos::ZOVA_N_Caixa::clsCaixa::kIdentificador, NovoClsCaixa},
    {servicos::ZOVA_N_Caixas::clsCaixas::kIdentificador, NovoClsCaixas},
    {servicos::ZOVA_N_ClientAnim::clsClientes::kIdentificador, NovoClsClientes},
    {servicos::ZOVA_N_Caixa::clsDebitosVencCliente::kIdentificador, NovoClsDebitosVencCliente},
    {servicos::ZOVA_N_Empresa::clsEmpresa::kIdentificador, NovoClsEmpresa},
    {servicos::ZOVA_N_Funcionarios::clsFuncionarios::kIdentificador, NovoClsFuncionarios},
    {servicos::ZOVA_N_Login::clsLogin::kIdentificador, NovoClsLogin},
    {servicos::ZOVA_N_SO::clsObterVersaoDoSO::kIdentificador, NovoClsObterVersaoDoSO},
    {servicos::ZOVA_N_Produtos::clsProdutos::kIdentificador, NovoClsProdutos},
    {servicos::ZOVA_N_RelFin::clsRelFin::kIdentificador, NovoClsRelFin},
    {servicos::ZOVA_N_Servicos::clsServicos::kIdentificador, NovoClsServicos},
    {servicos::ZOVA_N_Caixa::clsServicosEProdutos::kIdentificador, NovoClsServicosEProdutos},
    {servicos::ZOVA_N_TipoDeServ::clsTiposDeServ::kIdentificador, NovoClsTiposDeServ},
    {siblings::dados::clsCadastroFiscal::kIdentificador, NovoClsCadastroFiscal},
    {siblings::dados::clsDocumentos::kIdentificador, NovoClsDocumentos},
    {siblings::dados::clsHistorico::kIdentificador, NovoClsHistorico},
    {siblings::dados::clsOrcamentos::kIdentificador, NovoClsOrcamentos},
};

}  // namespace

void RegistrarServicos(const std::shared_ptr<Banco>& banco, std::function<void()> correrEventos) {
  banco->CorrerEventos(std::move(correrEventos));
  for (const Entry& entry : kEntries) {
    servicos::Registrar(entry.identifier, [banco, make = entry.make] { return make(banco); });
  }
}

}  // namespace services
