#include "frame/Consultas.h"

#include "base/Numbers.h"
#include "frame/servicos/Debito.h"
#include "frame/servicos/ZOVA_N_Caixa.clsDebitosVencCliente.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsAnimais.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "frame/servicos/ZOVA_N_Funcionarios.clsFuncionarios.h"
#include "frame/servicos/ZOVA_N_Produtos.clsProdutos.h"
#include "frame/servicos/ZOVA_N_Servicos.clsServicos.h"
#include "frame/servicos/ZOVA_N_TipoDeServ.clsTiposDeServ.h"

namespace frame::consultas {

using servicos::ZOVA_N_Caixa::clsDebitosVencCliente;
using servicos::ZOVA_N_ClientAnim::clsAnimais;
using servicos::ZOVA_N_ClientAnim::clsClientes;
using servicos::ZOVA_N_Funcionarios::clsFuncionarios;
using servicos::ZOVA_N_Produtos::clsProdutos;
using servicos::ZOVA_N_Servicos::clsServicos;
using servicos::ZOVA_N_TipoDeServ::clsTiposDeServ;

std::int16_t Clientes(clsClientes& clientes, std::string texto, double codigo) {
  return clientes.Selecionar(2, 0, 0, "", texto, codigo, "", "", "", 0, "");
}

std::int16_t Cliente(clsClientes& clientes, double codigo) {
  return Clientes(clientes, {}, codigo);
}

std::int16_t ClientesDaLista(clsClientes& clientes, std::string_view texto) {
  std::string semNome;
  double semCodigo = 0;
  return clientes.Selecionar(2, 0, 0, texto, semNome, semCodigo, "", "", "", 0, "");
}

std::int16_t AnimaisDoCliente(clsAnimais& animais, double cliente) {
  return animais.SelecionarParaComboBoxFiltradoPorCliente(cliente, 3);
}

std::int16_t DebitosVencidos(clsDebitosVencCliente& debitos, double cliente) {
  return debitos.Selecionar(2, " WHERE [" + std::string(servicos::debito::kColunaDoCliente) +
                                   "]=" + base::ToText(cliente));
}

bool Produtos(clsProdutos& produtos, std::string nome, std::string codigoDeBarras,
              double& codigoInterno) {
  return produtos.Selecionar(2, 0, 1, "", nome, codigoDeBarras, codigoInterno);
}

bool ProdutosDaLista(clsProdutos& produtos, std::string_view texto) {
  return produtos.Selecionar(2, 0, 1, texto, "");
}

bool Servicos(clsServicos& catalogo, std::int16_t tipo, std::string nome, double codigo) {
  return catalogo.Selecionar(2, 0, 1, "", tipo, nome, codigo);
}

bool ServicosDaLista(clsServicos& catalogo, std::string_view texto, std::int32_t tipo) {
  return catalogo.Selecionar(2, 0, 1, texto, tipo);
}

std::int16_t TiposDeServicos(clsTiposDeServ& tipos) {
  double todos = 0;
  return tipos.SelecionarParaComboBox(todos);
}

bool Funcionarios(clsFuncionarios& funcionarios, double& codigo) {
  return funcionarios.Selecionar(2, 0, 1, "", "", codigo);
}

}  // namespace frame::consultas
