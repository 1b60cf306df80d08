#pragma once

#include <cstdint>
#include <string_view>

#include "consent/Autorizacoes.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"

namespace registers {

/// One kind of movement of money that is not a sale: the words of its form and what it registers.
struct Movimento {
  using Registro = std::int16_t (servicos::ZOVA_N_Caixa::clsCaixa::*)();

  std::string_view formulario;
  std::string_view titulo;
  std::string_view explicacao = {};  ///< Empty for none.
  std::string_view dicaSalvar;
  std::string_view dicaCancelar;
  bool valorObrigatorio = false;
  std::string_view descricao = {};  ///< Empty: not passed at all.
  bool valorNegado = false;         ///< Passed as a double below zero instead of the field's text.
  Registro registrar = nullptr;
  std::string_view direito = {};  ///< The user's right to do it alone; empty when nobody needs one.
  const consent::Autorizacao* autorizacao = nullptr;  ///< Asked of a supervisor without that right.
};

inline constexpr Movimento kCaixaAbrir{
    .formulario = "frmCaixaAbrir",
    .titulo = "Abertura do caixa",
    .explicacao =
        "Se na abertura irá ocorrer a entrada de dinheiro (Valor inicial / Fundo de "
        "troco), informe o valor abaixo",
    .dicaSalvar = "Salvar abertura e fechar",
    .dicaCancelar = "Cancelar abertura e fechar",
    .registrar = &servicos::ZOVA_N_Caixa::clsCaixa::RegistrarAbertura};

inline constexpr Movimento kCaixaFechar{
    .formulario = "frmCaixaFechar",
    .titulo = "Fechamento do caixa",
    .explicacao = "Se no fechamento irá ocorrer a saída de dinheiro, informe o valor abaixo",
    .dicaSalvar = "Salvar fechamento e fechar",
    .dicaCancelar = "Cancelar fechamento e fechar",
    .valorNegado = true,
    .registrar = &servicos::ZOVA_N_Caixa::clsCaixa::RegistrarFechamento};

inline constexpr Movimento kCaixaEntradas{
    .formulario = "frmCaixaEntradas",
    .titulo = "Entradas no caixa",
    .dicaSalvar = "Salvar entrada e fechar",
    .dicaCancelar = "Cancelar entrada e fechar",
    .valorObrigatorio = true,
    .descricao = "Entrada (Reforço)",
    .registrar = &servicos::ZOVA_N_Caixa::clsCaixa::RegistrarEntrada};

inline constexpr Movimento kCaixaSaidas{
    .formulario = "frmCaixaSaidas",
    .titulo = "Saídas no caixa",
    .dicaSalvar = "Salvar saída e fechar",
    .dicaCancelar = "Cancelar saída e fechar",
    .valorObrigatorio = true,
    .descricao = "Saída (Sangria)",
    .registrar = &servicos::ZOVA_N_Caixa::clsCaixa::RegistrarSaida,
    .direito = "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas",
    .autorizacao = &consent::kAutorizarSaidasDoCaixa};

}  // namespace registers
