#include "lookup/frmPesquisaDeClientes.h"

#include <array>

#include "frame/Consultas.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/servicos/ZOVA_N_ClientAnim.clsClientes.h"
#include "lookup/PesquisaDeCliente.h"

namespace lookup {
namespace {

using enum frame::TipoDeColuna;
using enum platform::Align;

constexpr std::int32_t kSituacao = 4;

// The operator sees who it is; the rest is for whoever opened the list.
constexpr std::array<frame::Coluna, 21> kColunas{{
    {.titulo = "Coluna em branco"},
    {"Código", 1250, kLeftCenter, kNumero, "CodigoDoCliente"},
    {"Apelido/Nome fantasia", 4200, kLeftCenter, kTexto, "ApelidoOuNomeFantasia"},
    {"Nome/Razão Social", 6700, kLeftCenter, kTexto, "NomeOuRazaoSocial"},
    {"Situação", 0, kLeftCenter, kNumero, "Situacao"},
    {"Endereço", 0, kLeftCenter, kTexto, "EnderecoCompleto"},
    {"Canal de Comunicacao", 0, kLeftCenter, kTexto, "TiposECanaisDeComunicacao"},
    {"Crédito", 0, kRightCenter, kNumero, "Credito"},
    {"Desconto único", 0, kLeftCenter, kTexto, "DescontoUnico"},
    {"Percentual de desconto único", 0, kRightCenter, kNumero, "PercentualUnicoDeDescontos"},
    {"Percentual de desconto em serviços clínicos", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmClinicos"},
    {"Percentual de desconto em serviços em cirurgia simples", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmCirurgiaSimples"},
    {"Percentual de desconto em serviços em cirurgia média", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmCirurgiaMedia"},
    {"Percentual de desconto em serviços em cirurgia complexa", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmCirurgiaComplexa"},
    {"Percentual de desconto banhos, tosas e estéticas", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmBanhosTosasEEsteticas"},
    {"Percentual de desconto em hospedagens", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmHospedagens"},
    {"Percentual de desconto em adestramentos", 0, kRightCenter, kNumero,
     "PercentualDeDescontoEmAdestramentos"},
    {"Percentual de desconto em outros", 0, kRightCenter, kNumero, "PercentualDeDescontoEmOutros"},
    {"ClienteVIP", 0, kLeftCenter, kTexto, "VIP"},
    {"CategoriaDaCurvaABC", 0, kLeftCenter, kTexto, "CategoriaDaCurvaABC"},
    {"CPFCNPJ", 0, kLeftCenter, kTexto, "CPFCNPJ"},
}};

constexpr Pesquisa kPesquisa{.formulario = "frmPesquisaDeClientes",
                             .titulo = "Pesquisa de clientes",
                             .campo = "zvfndApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo",
                             .rotulo = "lblApelidoOuNomeFantasiaOuNomeOuRazaoSocialOuCodigo",
                             .legenda = "Apelido, nome fantasia, nome, razão social ou código*",
                             .rotina = "PesquisarCliente",
                             .formularioDaGrade = "frmPesquisaDeClientes",
                             .formularioDoCampo = "frmPesquisaDeClientes",
                             .registro = "cliente",
                             .registros = "clientes",
                             .colunas = kColunas};

}  // namespace

frmPesquisaDeClientes::frmPesquisaDeClientes() : frmPesquisa(kPesquisa) {
  msfgGrade.fontName = "Arial";
  Arrange(Desenho());
}

std::int16_t frmPesquisaDeClientes::ValidarCampos() {
  const double situacao = base::ToDouble("0" + msfgGrade.TextMatrix(msfgGrade.RowSel(), kSituacao));
  const auto recusa = RecusaDaSituacao(base::ToInt32(situacao));
  if (!recusa) return 0;
  frame::Informar(*recusa);
  msfgGrade.SetFocus();
  return 1;
}

Selecao frmPesquisaDeClientes::Selecionar(const std::string& texto, frame::Espera& espera) {
  auto clientes = frame::CriarServicoComSessao<servicos::ZOVA_N_ClientAnim::clsClientes>();
  const bool falhou = frame::consultas::ClientesDaLista(*clientes, texto) != 0;
  return Resultado(*clientes, falhou, espera);
}

std::string frmPesquisaDeClientes::NadaEncontrado(const std::string& texto) const {
  return "Nenhum cliente encontrado  como o valor '" + texto + "' informado.";
}

}  // namespace lookup
