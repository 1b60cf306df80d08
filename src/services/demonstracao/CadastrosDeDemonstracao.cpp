#include "services/banco/Preenchimento.h"
#include "services/banco/Search.h"
#include "services/banco/Senhas.h"
#include "services/demonstracao/ClinicaDeDemonstracao.h"
#include "services/demonstracao/DadosDeDemonstracao.h"

namespace services::demonstracao {
namespace {

constexpr std::int64_t kPercent = base::Currency::kScale;

void WriteCompany(Session& session) {
  constexpr std::int64_t kLimit = 15;
  constexpr const char* kWeightOnLabel = "2";
  // Valid, and of a number that is given to nobody.
  constexpr const char* kNobodysCnpj = "99.000.100/0001-85";
  InsertRows(session, "empresa",
             "codigo, nome_fantasia, formato_de_codigo_de_barras_para_balanca,"
             " codigo_do_documento_com_emissao_permitida, perc_desconto_limite, razao_social,"
             " cnpj, endereco, municipio, uf, telefone",
             {{1, "Clínica Veterinária Bicho Contente", kWeightOnLabel, "0", kLimit * kPercent,
               "Bicho Contente Serviços Veterinários Ltda.", kNobodysCnpj,
               "Rua das Laranjeiras, 250 - Vila Nova", "Vale Claro", "SP", "(11) 5550-0250"}});
}

void WriteRegisters(Session& session) {
  InsertRows(session, "caixas", "numero, local_de_atendimento",
             {{1, "Recepção"}, {2, "Banho e tosa"}, {3, "Loja"}});
}

void WriteUsers(Session& session) {
  std::vector<Params> rows;
  for (const Usuario& user : Usuarios()) {
    rows.push_back({rows.size() + 1, user.nome, SearchForm(user.nome), HashDaSenha(user.senha),
                    user.administrador, user.descontos, user.relatorios, user.credito, user.saidas,
                    user.cancelar});
  }
  InsertRows(session, "usuarios",
             "codigo, nome, nome_busca, senha, administrador, alterar_descontos, relatorios,"
             " vendas_a_credito, saidas_de_caixa, cancelar_vendas",
             rows);
}

void WriteEmployees(Session& session) {
  std::vector<Params> rows;
  for (const Funcionario& employee : Funcionarios()) {
    Params row{rows.size() + 1, employee.apelido, employee.comissionado, employee.unica,
               employee.percentualUnico * kPercent};
    for (const std::int32_t percent : employee.percentuais) row.emplace_back(percent * kPercent);
    rows.push_back(std::move(row));
  }
  InsertRows(session, "funcionarios",
             "codigo, apelido, comissionado, comissao_unica, comissao_unica_perc,"
             " comissao_clinicos, comissao_cirurgia_simples, comissao_cirurgia_media,"
             " comissao_cirurgia_complexa, comissao_banhos, comissao_hospedagens,"
             " comissao_adestramentos, comissao_outros",
             rows);
}

}  // namespace

void EscreverCadastros(Session& session) {
  WriteCompany(session);
  WriteRegisters(session);
  WriteUsers(session);
  WriteEmployees(session);
  ContinueKeys(session, "empresa", "codigo");
  ContinueKeys(session, "caixas", "numero");
  ContinueKeys(session, "usuarios", "codigo");
  ContinueKeys(session, "funcionarios", "codigo");
}

}  // namespace services::demonstracao
