#pragma once

#include <memory>

#include "frame/servicos/Servico.h"

/// One maker for each service of the contract that stands over the database. The classes themselves
/// are known in their own files alone.
namespace services {

class Banco;
using ServicoNovo = std::unique_ptr<servicos::Servico>;

ServicoNovo NovoClsAdministrativo(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsAnimais(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsCadastroFiscal(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsCaixa(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsCaixas(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsClientes(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsDebitosVencCliente(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsDocumentos(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsEmpresa(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsFuncionarios(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsHistorico(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsLogin(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsObterVersaoDoSO(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsOrcamentos(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsProdutos(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsRelFin(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsServicos(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsServicosEProdutos(const std::shared_ptr<Banco>& banco);
ServicoNovo NovoClsTiposDeServ(const std::shared_ptr<Banco>& banco);

}  // namespace services
