#include "tools/roteiro/CashDesk.h"

#include <functional>

#include "entry/clsCaixa.h"
#include "frame/Valores.h"

namespace roteiro {
namespace {

using frame::Valores;

/// A process-wide value by its name.
struct Named {
  std::string_view name;
  base::Value (*read)(const Valores& values);
};

template <auto Member>
base::Value Read(const Valores& values) {
  using T = std::remove_cvref_t<decltype(values.*Member)>;
  if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::string>) {
    return values.*Member;
  } else {
    return std::int32_t{values.*Member};
  }
}

#define CAIXA_VALUE(name) \
  { #name, Read < &Valores::name> }
constexpr Named kValues[] = {
    CAIXA_VALUE(NomeDaAplicacao),
    CAIXA_VALUE(HandleDaJanelaPrincipal),
    CAIXA_VALUE(NumeroDoCaixa),
    CAIXA_VALUE(LocalDeAtendimentoDoCaixa),
    CAIXA_VALUE(CodigoDoClienteComOperacoesBloqueadas),
    CAIXA_VALUE(AlturaOriginalDopicMensagem),
    CAIXA_VALUE(LarguraOriginalDopicMensagem),
    CAIXA_VALUE(SufixoDoRotuloDoCliente),
    CAIXA_VALUE(CPFCNPJDoCliente),
    CAIXA_VALUE(SuprimirProximoKeyDownDaPesquisa),
    CAIXA_VALUE(ChaveSAT),
    CAIXA_VALUE(ImprimirComprovanteDePagamento),
    CAIXA_VALUE(SolicitarConfirmacaoParaImprimirComprovanteDePagamento),
    CAIXA_VALUE(VisualizarImpressaoDoComprovanteDePagamento),
    CAIXA_VALUE(ImprimirNotaPromissoria),
    CAIXA_VALUE(SolicitarConfirmacaoParaImprimirNotaPromissoria),
    CAIXA_VALUE(VisualizarImpressaoDaNotaPromissoria),
    CAIXA_VALUE(ImprimirComprovanteDeCFeSAT),
    CAIXA_VALUE(SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT),
    CAIXA_VALUE(ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT),
};
#undef CAIXA_VALUE

class CashDesk final : public Module {
 public:
  void Open(const base::Record& session, std::string_view title, platform::WindowHandle mainWindow,
            platform::WindowHandle container) override {
    caixa_.DadosDoUsuario(&session);
    caixa_.NomeDaAplicacao(title);
    caixa_.CaixaOperar(mainWindow, container);
  }
  std::int32_t LockedCustomer() override { return caixa_.CodigoDoClienteComOperacoesBloqueadas(); }
  void LockOrUnlock(std::int32_t customer, std::int16_t action) override {
    caixa_.ClasseBloquearOuDesbloquearClienteParaOperacoesNosCaixas(customer, action);
  }
  std::optional<base::Value> ValueOf(std::string_view name) override {
    for (const Named& each : kValues) {
      if (each.name == name) return each.read(frame::valores());
    }
    return std::nullopt;
  }

 private:
  entry::clsCaixa caixa_;
};

}  // namespace

std::unique_ptr<Module> MakeCashDesk() {
  return std::make_unique<CashDesk>();
}

}  // namespace roteiro
