#pragma once

#include <string_view>

namespace sale {

/// A button of the cash menu, by its key, with the word that the operator reads.
struct BotaoDoMenu {
  std::string_view chave;
  std::string_view legenda;
};

inline constexpr BotaoDoMenu kBotoesDoMenuCaixa[] = {
    {"Abertura", "Abertura"},
    {"Fechamento", "Fechamento"},
    {"Entradas", "Entradas"},
    {"Saidas", "Saídas"},
    {"CancelarVenda", "Cancelar venda"},
    {"DesfazerCancelamento", "Desfazer cancelamento"},
    {"CreditoDoCliente", "Crédito do cliente"},
    {"DebitosDoCliente", "Débitos do cliente"},
    {"ConsultarHistoricoDeVendas", "Histórico de vendas"},
    {"ConsultarPrecos", "Consultar preços"},
    {"Orcamentos", "Orçamentos"},
    {"Relatorios", "Relatórios"},
    {"Comprovantes", "Comprovantes"}};

/// Tells the operator that a screen is not there yet.
void TelaIndisponivel(std::string_view tela);

}  // namespace sale
