#include "siblings/ImpressaoDeOrcamento.h"

#include <initializer_list>
#include <string>

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "platform/Desktop.h"
#include "siblings/Documentos.h"
#include "siblings/dados/clsOrcamentos.h"
#include "siblings/drOrcamento.h"

namespace siblings {
namespace {

/// What there is of these, parted by " - ".
std::string Juntar(std::initializer_list<std::string> textos) {
  std::string junto;
  for (const std::string& texto : textos) {
    if (texto.empty()) continue;
    if (!junto.empty()) junto += " - ";
    junto += texto;
  }
  return junto;
}

/// Puts the cursor on the row of that number; false when it is not there.
bool IrPara(base::RecordSet& orcamentos, std::int32_t numero) {
  for (orcamentos.MoveFirst(); !orcamentos.Eof(); orcamentos.MoveNext()) {
    if (base::ToInt32(orcamentos.Fields("Numero")) == numero) return true;
  }
  return false;
}

std::string Dia(const base::Value& momento) {
  return base::Format(base::ToDate(momento), base::DateMask::kDayMonthYear);
}

void Escrever(drOrcamento& relatorio, const base::RecordSet& orcamento) {
  const std::string numero = base::ToText(orcamento.Fields("Numero"));
  relatorio.Title = "Orçamento " + numero;
  relatorio.lblTitulo.Caption = "Orçamento nº " + numero;
  relatorio.lblData.Caption = Dia(orcamento.Fields("DataEHora"));
  const std::string animal = base::ToText(orcamento.Fields("Animal"));
  if (!animal.empty()) relatorio.lblAnimal.Caption = "Animal: " + animal;
  relatorio.lblDesconto.Caption = base::FormatMoney(base::ToCurrency(orcamento.Fields("Desconto")));
  relatorio.lblTotal.Caption = base::FormatMoney(base::ToCurrency(orcamento.Fields("ValorTotal")));
  const std::string observacao = base::ToText(orcamento.Fields("Observacao"));
  if (!observacao.empty()) relatorio.lblObservacao.Caption = "Observação: " + observacao;
  const bool cancelado = base::ToText(orcamento.Fields("Situacao")) == "Cancelado";
  relatorio.lblValidade.Caption =
      cancelado ? "ORÇAMENTO CANCELADO"
                : "Orçamento válido até " + Dia(orcamento.Fields("Validade")) + ".";
}

}  // namespace

void ImprimirOrcamento(const Cliente& cliente, std::int32_t numero) {
  const std::optional<Empresa> empresa = EmpresaDoDocumento("o orçamento");
  if (!empresa) return;
  auto orcamentos = frame::CriarServicoComSessao<dados::clsOrcamentos>();
  if (!frame::Aceitar(orcamentos->Selecionar(cliente.codigo), *orcamentos)) return;
  const base::RecordSetPtr orcamento = orcamentos->ResultadoDaSelecaoEmRecordSet();
  if (!IrPara(*orcamento, numero)) return;
  if (!frame::Aceitar(orcamentos->SelecionarItens(numero), *orcamentos)) return;

  drOrcamento relatorio(platform::Desktop::Current().ReceiptPaper());
  relatorio.DataSource = orcamentos->ResultadoDaSelecaoEmRecordSet();
  relatorio.lblEmpresa.Caption = empresa->nomeFantasia;
  relatorio.lblDadosDaEmpresa.Caption =
      Juntar({empresa->razaoSocial, empresa->cnpj.empty() ? "" : "CNPJ " + empresa->cnpj}) + "\n" +
      Juntar({empresa->endereco, empresa->Praca(), empresa->telefone});
  relatorio.lblCliente.Caption = "Cliente: " + cliente.PorExtenso();
  Escrever(relatorio, *orcamento);
  relatorio.Show();
}

}  // namespace siblings
