#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace servicos::ZOVA_N_Caixa {
class clsDebitosVencCliente;
}
namespace servicos::ZOVA_N_ClientAnim {
class clsAnimais;
class clsClientes;
}  // namespace servicos::ZOVA_N_ClientAnim
namespace servicos::ZOVA_N_Funcionarios {
class clsFuncionarios;
}
namespace servicos::ZOVA_N_Produtos {
class clsProdutos;
}
namespace servicos::ZOVA_N_Servicos {
class clsServicos;
}
namespace servicos::ZOVA_N_TipoDeServ {
class clsTiposDeServ;
}

/// The selections of the services by what they look for. Most of the arguments that the contract
/// wants never change; they stand here and nowhere else. Each answers what its service answers: a
/// numbered status, or for products, services and employees true on a fault.
namespace frame::consultas {

/// By part of a nickname or name, or by the code where the text is empty.
std::int16_t Clientes(servicos::ZOVA_N_ClientAnim::clsClientes& clientes, std::string texto,
                      double codigo);
/// The one customer of a code.
std::int16_t Cliente(servicos::ZOVA_N_ClientAnim::clsClientes& clientes, double codigo);
/// By any of code and names, for the pick list.
std::int16_t ClientesDaLista(servicos::ZOVA_N_ClientAnim::clsClientes& clientes,
                             std::string_view texto);
std::int16_t AnimaisDoCliente(servicos::ZOVA_N_ClientAnim::clsAnimais& animais, double cliente);
std::int16_t DebitosVencidos(servicos::ZOVA_N_Caixa::clsDebitosVencCliente& debitos,
                             double cliente);

/// By internal code, else by exact barcode, else by part of the name; 0 and empty for none. The
/// service may put another code in the place of the one it was given.
bool Produtos(servicos::ZOVA_N_Produtos::clsProdutos& produtos, std::string nome,
              std::string codigoDeBarras, double& codigoInterno);
/// By code or part of the name, for the pick list.
bool ProdutosDaLista(servicos::ZOVA_N_Produtos::clsProdutos& produtos, std::string_view texto);
/// Of a type, by code, else by part of the name.
bool Servicos(servicos::ZOVA_N_Servicos::clsServicos& catalogo, std::int16_t tipo, std::string nome,
              double codigo);
/// By code or part of the name, for the pick list; type 0 for all.
bool ServicosDaLista(servicos::ZOVA_N_Servicos::clsServicos& catalogo, std::string_view texto,
                     std::int32_t tipo);
std::int16_t TiposDeServicos(servicos::ZOVA_N_TipoDeServ::clsTiposDeServ& tipos);

/// All of them where the code is 0; the service may put one of its own there.
bool Funcionarios(servicos::ZOVA_N_Funcionarios::clsFuncionarios& funcionarios, double& codigo);

}  // namespace frame::consultas
