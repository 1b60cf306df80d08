#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Record.h"
#include "platform/Form.h"

namespace frame {

/// The company's settings for what is printed after a sale, read when the counter starts.
struct IndicativosDeImpressao {
  bool ImprimirComprovanteDePagamento = false;
  bool SolicitarConfirmacaoParaImprimirComprovanteDePagamento = false;
  bool VisualizarImpressaoDoComprovanteDePagamento = false;
  bool ImprimirNotaPromissoria = false;
  bool SolicitarConfirmacaoParaImprimirNotaPromissoria = false;
  bool VisualizarImpressaoDaNotaPromissoria = false;
  bool ConfirmarAVendaNoCaixaMesmoComFalhaNaEmissaoDoCFeSAT = false;
  bool ImprimirComprovanteDeCFeSAT = false;
  bool SolicitarConfirmacaoParaImprimirComprovanteDeCFeSAT = false;
};

/// The values that the whole module shares: one set a process, used on the screen thread alone.
struct Valores : IndicativosDeImpressao {
  /// The host's record of the logged-in user: a live reference, never copied, never changed.
  const base::Record* DadosDoUsuario = nullptr;
  /// The title of every message box.
  std::string NomeDaAplicacao;
  /// The host's main window, which dialogs and waits darken.
  platform::WindowHandle HandleDaJanelaPrincipal = 0;
  platform::Form* frmCaixaOperarAtual = nullptr;
  /// The selected register; -1 when none is selected. Kept in the settings file.
  std::int32_t NumeroDoCaixa = 0;
  std::string LocalDeAtendimentoDoCaixa;
  /// The customer that this workstation holds locked; 0 when none.
  std::int32_t CodigoDoClienteComOperacoesBloqueadas = 0;
  /// The design size of the counter's wait panel, in twips.
  std::int16_t AlturaOriginalDopicMensagem = 0;
  std::int16_t LarguraOriginalDopicMensagem = 0;
  /// What follows "Cliente*" for the customer on the screen, such as " [ VIP - A ]".
  std::string SufixoDoRotuloDoCliente;
  std::string CPFCNPJDoCliente;
  /// Set while code fills find fields and lists, so that their handlers do not take it for the
  /// operator's act. See SupressaoDePesquisa.
  bool SuprimirProximoKeyDownDaPesquisa = false;
  /// The key of the fiscal coupon just issued.
  std::string ChaveSAT;
};

Valores& valores();

/// A field of the session record; error 91 before the host has handed it over.
base::Value CampoDaSessao(std::string_view campo);
/// A right of the logged-in user.
bool Direito(std::string_view campo);
/// Whether the company issues the fiscal coupon (CF-e SAT): document "11".
bool EmiteDocumentoFiscal();

/// Keeps SuprimirProximoKeyDownDaPesquisa set while the routine that holds it writes, and not
/// longer: nothing that the operator does afterwards may be lost.
class SupressaoDePesquisa {
 public:
  SupressaoDePesquisa() { Repetir(); }
  ~SupressaoDePesquisa() { valores().SuprimirProximoKeyDownDaPesquisa = false; }
  SupressaoDePesquisa(const SupressaoDePesquisa&) = delete;
  SupressaoDePesquisa& operator=(const SupressaoDePesquisa&) = delete;

  /// Sets the flag again after a handler has taken it.
  void Repetir() { valores().SuprimirProximoKeyDownDaPesquisa = true; }
};

/// Whether the flag stands; it is taken down in the same breath.
bool TomarSupressaoDePesquisa();

}  // namespace frame
