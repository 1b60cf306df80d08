#pragma once

#include "services/banco/Fields.h"

namespace services {

/// The company's settings, by their names in the service contract.
inline constexpr Field kCamposDaEmpresa[] = {
    {"NomeFantasia", Field::Kind::kText, "nome_fantasia"},
    {"FormatoDeCodigoDeBarrasParaBalanca", Field::Kind::kText,
     "formato_de_codigo_de_barras_para_balanca"},
    {"DataInicialDaPromocao", Field::Kind::kMoment, "data_inicial_da_promocao"},
    {"DataFinalDaPromocao", Field::Kind::kMoment, "data_final_da_promocao"},
    {"PercPromocaoDeDescontoNaVendaDeServico", Field::Kind::kMoney, "perc_promocao_servico"},
    {"PercPromocaoDeDescontoNaVendaDeProduto", Field::Kind::kMoney, "perc_promocao_produto"},
    {"DataInicialDoDesctoMaxAutomatico", Field::Kind::kMoment, "data_inicial_do_desconto_maximo"},
    {"DataFinalDoDesctoMaxAutomatico", Field::Kind::kMoment, "data_final_do_desconto_maximo"},
    {"PercDeDescMaxAutNaVendaDeServico", Field::Kind::kMoney, "perc_desconto_maximo_servico"},
    {"PercDeDescMaxAutNaVendaDeProduto", Field::Kind::kMoney, "perc_desconto_maximo_produto"},
    {"PercDeDescontoLimiteDaVendaNoCaixa", Field::Kind::kMoney, "perc_desconto_limite"},
    {"ImprimirComprovanteDePagamento", Field::Kind::kYesNo, "imprimir_comprovante"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDePagamento", Field::Kind::kYesNo,
     "confirmar_comprovante"},
    {"VisualizarImpressaoDoComprovanteDePagamento", Field::Kind::kYesNo, "visualizar_comprovante"},
    {"ImprimirNotaPromissoria", Field::Kind::kYesNo, "imprimir_nota_promissoria"},
    {"SolicitarConfirmacaoParaImprimirNotaPromissoria", Field::Kind::kYesNo,
     "confirmar_nota_promissoria"},
    {"VisualizarImpressaoDaNotaPromissoria", Field::Kind::kYesNo, "visualizar_nota_promissoria"},
    {"ImprimirComprovanteDeCFeSAT", Field::Kind::kYesNo, "imprimir_cfe_sat"},
    {"SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT", Field::Kind::kYesNo,
     "confirmar_cfe_sat"},
    {"ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT", Field::Kind::kYesNo,
     "vender_mesmo_com_falha_no_cfe_sat"},
};

/// Who the company is on a printed document. The first field stands above as well.
inline constexpr Field kEmpresaNosDocumentos[] = {
    {"NomeFantasia", Field::Kind::kText, "nome_fantasia"},
    {"RazaoSocial", Field::Kind::kText, "razao_social"},
    {"CNPJ", Field::Kind::kText, "cnpj"},
    {"Endereco", Field::Kind::kText, "endereco"},
    {"Municipio", Field::Kind::kText, "municipio"},
    {"UF", Field::Kind::kText, "uf"},
    {"Telefone", Field::Kind::kText, "telefone"},
};

}  // namespace services
