#include "tools/banco/Relatorios.h"

#include <ostream>

#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/servicos/Codigos.h"
#include "frame/servicos/Pagamento.h"

namespace banco {
namespace {

constexpr std::size_t kNameWidth = 44;
constexpr std::size_t kAmountWidth = 14;

std::string Column(const std::string& text, std::size_t width) {
  return base::PadRight(base::Left(text, width), width);
}

std::string Amount(base::Currency value) {
  const std::string text = base::FormatMoney(value);
  const std::size_t length = base::Length(text);
  return std::string(length < kAmountWidth ? kAmountWidth - length : 0, ' ') + text;
}

void Line(std::ostream& out, const std::string& name, base::Currency amount) {
  out << "    " << Column(name, kNameWidth) << Amount(amount) << '\n';
}

void ShowItem(std::ostream& out, const services::VendaRegistrada::Item& item) {
  std::string name = base::FormatMoney(item.quantidade) + " x " + item.nome;
  if (!item.animal.empty()) name += " (" + item.animal + ")";
  if (item.preVenda) name += " [pré-venda]";
  Line(out, name, item.valorTotal);
  if (!item.desconto.IsZero()) {
    out << "        com desconto de " << base::FormatMoney(item.desconto) << '\n';
  }
}

void ShowTender(std::ostream& out, const services::VendaRegistrada::Recebimento& tender) {
  std::string name(servicos::pagamento::NomeDa(tender.moeda));
  if (!tender.vencimento.empty()) name += ", vence em " + tender.vencimento;
  Line(out, name, tender.valor);
}

void ShowSale(std::ostream& out, const services::VendaRegistrada& sale) {
  out << "Venda " << sale.numero << "  " << base::ToText(sale.quando) << "  caixa " << sale.caixa
      << "  operador " << sale.operador << '\n';
  out << "  Cliente: " << sale.codigoDoCliente << " - " << sale.nomeDoCliente << '\n';
  if (sale.situacao == servicos::kCancelada) out << "  Situação: cancelada\n";
  out << "  Itens:\n";
  for (const auto& item : sale.itens) ShowItem(out, item);
  Line(out, "Valor bruto", sale.bruto);
  if (!sale.descontoDaVenda.IsZero()) {
    Line(out, "Desconto nos itens", -sale.descontoNosItens);
    Line(out, "Desconto da venda", -sale.descontoDaVenda);
  }
  Line(out, "Valor líquido", sale.liquido);
  out << "  Pagamentos:\n";
  for (const auto& tender : sale.recebimentos) ShowTender(out, tender);
  Line(out, "Troco", sale.troco);
  if (!sale.creditoParaOCliente.IsZero()) {
    Line(out, "Crédito para o cliente", sale.creditoParaOCliente);
  }
  if (!sale.chaveSat.empty()) out << "  Chave do CF-e: " << sale.chaveSat << '\n';
}

}  // namespace

void Mostrar(std::ostream& saida, const std::vector<services::VendaRegistrada>& vendas) {
  if (vendas.empty()) saida << "Nenhuma venda registrada.\n";
  for (const auto& venda : vendas) {
    ShowSale(saida, venda);
    saida << '\n';
  }
}

void Mostrar(std::ostream& saida, const std::vector<services::Trava>& travas) {
  if (travas.empty()) saida << "Nenhum cliente em atendimento.\n";
  for (const auto& trava : travas) {
    saida << trava.codigoDoCliente << " - " << trava.nomeDoCliente << ", com " << trava.usuario
          << " no computador " << trava.computador << " desde " << base::ToText(trava.desde)
          << '\n';
  }
}

void Mostrar(std::ostream& saida, const std::vector<services::Cupom>& cupons) {
  if (cupons.empty()) saida << "Nenhum cupom fiscal sem venda.\n";
  for (const auto& cupom : cupons) {
    saida << "Cupom " << cupom.numero << "  " << base::ToText(cupom.quando) << "  caixa "
          << cupom.caixa << "  operador " << cupom.operador << "  computador " << cupom.computador
          << '\n';
    if (cupom.codigoDoCliente != 0) {
      saida << "  Cliente: " << cupom.codigoDoCliente << " - " << cupom.nomeDoCliente << '\n';
    }
    saida << "  Valor dos produtos: " << base::FormatMoney(cupom.valor) << '\n'
          << "  Situação: " << cupom.desfecho << '\n';
  }
}

void Mostrar(std::ostream& saida, const std::vector<services::UsuarioDeDemonstracao>& usuarios) {
  saida << "Usuários da clínica de demonstração:\n";
  for (const auto& usuario : usuarios) {
    saida << "  usuário " << Column(usuario.nome, 8) << "  senha " << Column(usuario.senha, 14)
          << "  " << usuario.papel << '\n';
  }
}

}  // namespace banco
