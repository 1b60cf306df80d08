#include <ostream>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"
#include "tools/banco/Relatorios.h"

namespace banco {
namespace {

using base::FormatMoney;

std::string Dia(base::DateTime quando) {
  return base::Format(quando, base::DateMask::kDayMonthYear);
}

std::string NumaLinha(const std::string& texto) {
  return base::Replace(texto, "\n", " / ");
}

const char* NomeDoLancamento(servicos::TipoDeMovimento tipo) {
  if (tipo == servicos::kEstorno) return "Estorno";
  return tipo == servicos::kTroco ? "Troco" : "Recebimento";
}

void MostrarItens(std::ostream& saida, const services::VendaRegistrada& venda) {
  std::size_t numero = 0;
  for (const auto& item : venda.itens) {
    saida << "Item " << ++numero << ": " << base::ToText(item.quantidade) << " x " << item.nome;
    if (!item.animal.empty()) saida << " (" << item.animal << ")";
    saida << " a " << FormatMoney(item.valorUnitario) << ", desconto de "
          << FormatMoney(item.desconto) << ", total " << FormatMoney(item.valorTotal)
          << (item.preVenda ? ", de pré-venda" : "") << '\n';
  }
}

/// The two discounts apart where the sale bore one of its own: the figure above them is what the
/// checkout hands over, and does not lead from gross to net.
void MostrarDescontos(std::ostream& saida, const services::FichaDaVenda& ficha) {
  saida << "Descontos: " << FormatMoney(ficha.venda.totalDeDescontos) << '\n';
  if (ficha.venda.descontoDaVenda.IsZero()) return;
  saida << "Desconto nos itens: " << FormatMoney(ficha.venda.descontoNosItens) << '\n'
        << "Desconto da venda: " << FormatMoney(ficha.venda.descontoDaVenda) << '\n';
}

void MostrarSomas(std::ostream& saida, const services::FichaDaVenda& ficha) {
  saida << "Valor bruto: " << FormatMoney(ficha.venda.bruto) << '\n';
  MostrarDescontos(saida, ficha);
  const struct {
    const char* nome;
    base::Currency valor;
  } somas[] = {{"Valor líquido", ficha.venda.liquido},
               {"Recebido", ficha.venda.totalRecebido},
               {"Troco", ficha.venda.troco},
               {"Crédito que restava", ficha.venda.creditoAnterior},
               {"Crédito usado", ficha.venda.creditoUsado},
               {"Crédito deixado", ficha.venda.creditoParaOCliente},
               {"Custo", ficha.venda.custo},
               {"Comissão", ficha.venda.comissao},
               {"Lucro", ficha.venda.lucro}};
  for (const auto& soma : somas) saida << soma.nome << ": " << FormatMoney(soma.valor) << '\n';
}

void MostrarMovimentos(std::ostream& saida, const services::FichaDaVenda& ficha) {
  for (const auto& lancamento : ficha.lancamentos) {
    saida << NomeDoLancamento(lancamento.tipo) << " em "
          << servicos::pagamento::NomeDa(lancamento.moeda) << ": " << FormatMoney(lancamento.valor)
          << '\n';
  }
  for (const auto& conta : ficha.contas) {
    saida << "A receber: parcela " << conta.parcela << " de " << conta.parcelas << ", vence em "
          << Dia(conta.vencimento) << ", " << FormatMoney(conta.valor) << ", "
          << (conta.situacao == servicos::kContaAberta ? "em aberto" : conta.situacao) << '\n';
  }
  for (const auto& credito : ficha.creditos) {
    saida << credito.observacao << ": " << FormatMoney(credito.valor) << '\n';
  }
  for (const auto& preVenda : ficha.preVendas) {
    saida << "Pré-venda baixada: " << preVenda.numero << " - " << preVenda.nome << '\n';
  }
}

}  // namespace

void Mostrar(std::ostream& saida, const services::FichaDaVenda& ficha) {
  const services::VendaRegistrada& venda = ficha.venda;
  saida << "Venda: " << venda.numero << '\n'
        << "Quando: " << base::ToText(venda.quando) << '\n'
        << "Caixa: " << venda.caixa << '\n'
        << "Operador: " << venda.operador << '\n'
        << "Cliente: " << venda.codigoDoCliente << " - " << venda.nomeDoCliente << '\n';
  if (venda.situacao == servicos::kCancelada) saida << "Situação: cancelada\n";
  MostrarItens(saida, venda);
  MostrarSomas(saida, ficha);
  MostrarMovimentos(saida, ficha);
  saida << "Chave do CF-e: " << (venda.chaveSat.empty() ? "nenhuma" : venda.chaveSat) << '\n'
        << "Observação: " << NumaLinha(ficha.venda.observacao) << '\n';
  for (const services::FichaDaVenda::Reversao& reversao : ficha.reversoes) {
    saida << (reversao.desfaz ? "Restaurada" : "Cancelada") << " em "
          << base::ToText(reversao.quando) << " por " << reversao.operador;
    if (!reversao.consentidoPor.empty()) saida << ", autorizada por " << reversao.consentidoPor;
    saida << ": " << NumaLinha(reversao.motivo) << '\n';
  }
}

void Mostrar(std::ostream& saida, std::int32_t codigo, const services::FichaDoCliente& ficha) {
  saida << "Cliente: " << codigo << " - " << ficha.apelido << " (" << ficha.nome << ")\n"
        << "Crédito: " << FormatMoney(ficha.credito) << '\n'
        << "Limite de crédito: " << (ficha.limite.IsZero() ? "nenhum" : FormatMoney(ficha.limite))
        << '\n';
  for (const auto& conta : ficha.contasEmAberto) {
    saida << "A receber: "
          << (conta.venda == 0 ? "sem venda" : "venda " + std::to_string(conta.venda))
          << ", vence em " << Dia(conta.vencimento) << ", " << FormatMoney(conta.valor) << '\n';
  }
  for (const auto& preVenda : ficha.preVendasEmAberto) {
    saida << "Pré-venda em aberto: " << preVenda.numero << " - " << preVenda.nome << ", "
          << FormatMoney(preVenda.valor) << '\n';
  }
  if (ficha.contasEmAberto.empty() && ficha.preVendasEmAberto.empty()) {
    saida << "Nada em aberto.\n";
  }
}

void Mostrar(std::ostream& saida, const std::vector<services::Ajuste>& ajustes) {
  for (const auto& [nome, valor] : ajustes) saida << nome << '=' << valor << '\n';
}

}  // namespace banco
