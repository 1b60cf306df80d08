#include <optional>
#include <string>

#include "base/DateTime.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "frame/CriarServico.h"
#include "frame/Mensagens.h"
#include "frame/Procedimento.h"
#include "frame/servicos/ZOVA_A_RelFin.clsRelFin.h"
#include "platform/Desktop.h"
#include "siblings/Documentos.h"
#include "siblings/Telas.h"
#include "siblings/dados/clsDocumentos.h"
#include "siblings/drNotaPromissoria.h"

namespace siblings {
namespace {

using dados::clsDocumentos;

/// What a note is for, as the checkout hands it over.
struct Pedido {
  base::DateTime emissao, vencimento;
  base::Currency valor;
  double codigoDoCliente = 0;
};

std::optional<Emitente> LerEmitente(double codigoDoCliente) {
  auto documentos = frame::CriarServicoComSessao<clsDocumentos>();
  const std::int16_t status = documentos->SelecionarCliente(codigoDoCliente);
  if (!frame::Aceitar(status, *documentos)) return std::nullopt;
  const base::RecordSetPtr registro = documentos->ResultadoDaSelecaoEmRecordSet();
  if (registro->RecordCount() == 0) {
    frame::Informar(
        "Não foi possível imprimir a nota promissória porque o cliente não está mais "
        "cadastrado.\nA venda está registrada; preencha a nota à mão.");
    return std::nullopt;
  }
  registro->MoveFirst();
  return Emitente{.nome = base::ToText(registro->Fields("Nome")),
                  .documento = base::ToText(registro->Fields("CPFCNPJ")),
                  .endereco = base::ToText(registro->Fields("Endereco"))};
}

/// Sale and instalment, as in "123-1/2"; where they cannot be told, day and customer. Nothing after
/// a fault.
std::optional<std::string> LerNumero(const Pedido& pedido) {
  auto documentos = frame::CriarServicoComSessao<clsDocumentos>();
  const std::int16_t status = documentos->SelecionarParcela(pedido.codigoDoCliente, pedido.emissao,
                                                            pedido.vencimento, pedido.valor);
  if (!frame::Aceitar(status, *documentos)) return std::nullopt;
  const base::RecordSetPtr registro = documentos->ResultadoDaSelecaoEmRecordSet();
  if (registro->RecordCount() == 0) {
    const std::string dia = base::Format(pedido.emissao, base::DateMask::kYearMonthDay);
    return base::Replace(dia, "/", "") + "-" + base::ToText(pedido.codigoDoCliente);
  }
  registro->MoveFirst();
  return base::ToText(registro->Fields("NumeroDaVenda")) + "-" +
         base::ToText(registro->Fields("NumeroDaParcela")) + "/" +
         base::ToText(registro->Fields("NumeroDeParcelas"));
}

class clsRelFin final : public TelaComum<servicos::ZOVA_A_RelFin::clsRelFin> {
 public:
  void ImprimirNotaPromissoria(std::string_view hoje, base::DateTime vencimento,
                               base::Currency valor, double codigoDoCliente,
                               bool& visualizar) override {
    frame::Procedimento(frame::etiquetas::kImprimirNotaPromissoria, [&](frame::Ponto& ponto) {
      const Pedido pedido{base::ToDate(hoje), vencimento, valor, codigoDoCliente};
      const std::optional<Empresa> empresa = EmpresaDoDocumento("a nota promissória");
      if (!empresa) return;
      ponto = 2;
      const std::optional<Emitente> emitente = LerEmitente(codigoDoCliente);
      if (!emitente) return;
      ponto = 3;
      const std::optional<std::string> numero = LerNumero(pedido);
      if (!numero) return;
      ponto = 4;
      drNotaPromissoria nota(
          platform::Desktop::Current().ReceiptPaper(),
          RedigirNotaPromissoria(*empresa, *emitente, *numero, pedido.emissao, vencimento, valor));
      if (visualizar) {
        nota.Show();
      } else {
        nota.PrintReport();
      }
    });
  }
};

}  // namespace

TelaNova NovaClsRelFin() {
  return std::make_unique<clsRelFin>();
}

}  // namespace siblings
