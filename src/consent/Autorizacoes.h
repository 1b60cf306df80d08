#pragma once

#include <string_view>

namespace consent {

/// The right that a supervisor must hold for one kind of act, and the words of the dialog that asks
/// for it.
struct Autorizacao {
  std::string_view formulario;
  std::string_view titulo;
  std::string_view dica;     ///< Tool tip of the button that confirms.
  std::string_view direito;  ///< Field of the supervisor's own record.
  std::string_view recusa;
  /// The form named in the error locations of the opening and of the resizing.
  std::string_view nomeNaAbertura = formulario;
  std::string_view nomeNoRedimensionamento = formulario;
};

inline constexpr Autorizacao kAutorizarDesconto{
    .formulario = "frmCaixaAutorizarDesconto",
    .titulo = "Autorização para efetuar desconto",
    .dica = "Autorizar desconto na venda",
    .direito = "Administrador",
    .recusa = "Usuário não autorizado para efetuar desconto.",
    .nomeNoRedimensionamento = "frmCaixaAutorizarEfetuarVendasACreditoFiado"};

inline constexpr Autorizacao kAutorizarSaidasDoCaixa{
    .formulario = "frmCaixaAutorizarSaidasDoCaixa",
    .titulo = "Autorização para efetuar saídas do caixa",
    .dica = "Autorizar saída no caixa",
    .direito = "PermissaoDoModuloCaixaEfetuarSaidasDeCaixas",
    .recusa = "Usuário não autorizado para efetuar saídas do caixa.",
    .nomeNaAbertura = "frmCaixaAutorizarfrmCaixaAutorizarSaidasDoCaixa"};

inline constexpr Autorizacao kAutorizarEfetuarVendasACreditoFiado{
    .formulario = "frmCaixaAutorizarEfetuarVendasACreditoFiado",
    .titulo = "Autorização para efetuar vendas a crédito ",
    .dica = "Autorizar a venda a crédito (fiado)",
    .direito = "PermissaoDoModuloCaixaEfetuarVendasACreditoFiado",
    .recusa = "Usuário não autorizado para efetuar vendas a crédito (fiado)."};

inline constexpr Autorizacao kAutorizarCancelarVendas{
    .formulario = "frmCaixaAutorizarCancelarVendas",
    .titulo = "Autorização para efetuar cancelamento",
    .dica = "Autorizar cancelamento da venda",
    .direito = "PermissaoDoModuloCaixaCancelarVendas",
    .recusa = "Usuário não autorizado para efetuar cancelamentos de vendas."};

inline constexpr Autorizacao kAutorizarDesfazerCancelamento{
    .formulario = "frmCaixaAutorizarDesfazerCancelamento",
    .titulo = "Autorização para desfazer cancelamento",
    .dica = "Autorizar o desfazer cancelamento da venda",
    .direito = "PermissaoDoModuloCaixaCancelarVendas",
    .recusa = "Usuário não autorizado para desfazer cancelamentos de vendas."};

}  // namespace consent
