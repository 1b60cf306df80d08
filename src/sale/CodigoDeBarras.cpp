#include "base/Text.h"
#include "frame/CamposNumericos.h"
#include "frame/Empresa.h"
#include "frame/Mensagens.h"
#include "sale/frmCaixaOperar.h"

namespace sale {

using base::Currency;
using frame::Ponto;
using frame::Procedimento;
using platform::ZVFind;

namespace {

constexpr std::size_t kMenosDigitos = 13, kMaisDigitos = 14;
constexpr std::string_view kInicioDeBalanca = "2";

// A scale barcode by its positions, from 1: "2", six of the internal code, five of weight or price,
// and a check digit that nobody looks at.
constexpr std::size_t kCodigoInternoEm = 2, kDigitosDoCodigoInterno = 6;
constexpr std::size_t kPesoOuPrecoEm = 8;

enum FormatoDeBalanca : std::int32_t { kPreco = 1, kPeso = 2 };

/// Five digits with the comma after the first `inteiros`.
Currency ComVirgula(const std::string& codigo, std::size_t inteiros) {
  return base::ToCurrency(base::Mid(codigo, kPesoOuPrecoEm, inteiros) + "," +
                          base::Mid(codigo, kPesoOuPrecoEm + inteiros, 5 - inteiros));
}

}  // namespace

void frmCaixaOperar::zvfCodigoDeBarrasDoProduto_Click() {
  Procedimento(", frmCaixaOperar, zvfCodigoDeBarrasDoProduto_Click, Ponto: ", [&](Ponto& ponto) {
    ZVFind& campo = zvfCodigoDeBarrasDoProduto;
    if (campo.Status() == ZVFind::kEmpty) {
      VoltarAoCampo(campo);
      return;
    }
    if (campo.Status() != ZVFind::kTyped) return;
    ponto = 2;
    const std::string codigo = base::Trim(campo.Text());
    const std::size_t digitos = base::Length(codigo);
    if (digitos < kMenosDigitos || digitos > kMaisDigitos) {
      campo.Enabled = true;
      frame::Informar("Informe um código de barras de 13 ou 14 dígitos.");
      if (campo.Style() != ZVFind::kTextStyle) campo.SetFocus();
      return;
    }
    ponto = 3;
    zvfNomeDoProduto.Text = "";
    zvfCodigoInternoDoProduto.Text = "";
    if (codigo.starts_with(kInicioDeBalanca)) {
      PesquisarPorCodigoDeBalanca(codigo);
    } else {
      PesquisarPorCodigoDeBarras();
    }
  });
}

void frmCaixaOperar::PesquisarPorCodigoDeBarras() {
  if (ProcurarProdutoDosCampos()) {
    AbrirCamposDoProdutoEncontrado();
  } else {
    RecusarCodigoDeBarras();
  }
}

// Nothing of the item found before stays behind: neither its price nor its quantity can be added.
void frmCaixaOperar::RecusarCodigoDeBarras() {
  if (SemCliente()) return;
  zvfCodigoDeBarrasDoProduto.Status = ZVFind::kFound;
  VoltarAoCampo(zvfCodigoDeBarrasDoProduto);
}

void frmCaixaOperar::PesquisarPorCodigoDeBalanca(const std::string& codigo) {
  zvfCodigoInternoDoProduto.Status = ZVFind::kFound;
  zvfCodigoInternoDoProduto.Text = base::ToText(
      base::Val(base::Trim(base::Mid(codigo, kCodigoInternoEm, kDigitosDoCodigoInterno))));
  if (!ProcurarProdutoDosCampos()) {
    RecusarCodigoDeBarras();
    return;
  }
  const frame::LeituraDaEmpresa leitura = frame::LerEmpresa();
  if (!leitura.empresa) return;
  if (leitura.empresa->RecordCount() == 0) {
    frame::Informar(
        "Não foi possível recuperar dados porque empresa não esta cadastrada.\nEfetue o cadastro e "
        "tente novamente");
    return;
  }
  const std::int32_t formato =
      base::ToInt32(base::Val(leitura.empresa->Fields("FormatoDeCodigoDeBarrasParaBalanca")));
  if (!PreencherComboboxComissionados(kProduto)) return;
  if (const auto quantidade = QuantidadeDaBalanca(formato)) {
    zvnumQuantidade.Text = base::Format(*quantidade, base::kWeightMask);
  }
  HabilitarDesabilitarCampos(true);
  zvcmbComissionado.SetFocus();
}

// Only the barcode that the service gave back counts, and that stands in the field by now: for a
// product sold by weight it is the scanned one.
std::optional<Currency> frmCaixaOperar::QuantidadeDaBalanca(std::int32_t formato) {
  const std::string& devolvido = zvfCodigoDeBarrasDoProduto.Text();
  switch (formato) {
    case kPreco: {
      const double preco = base::ToDouble(ComVirgula(devolvido, 3));
      const double unitario = base::ToDouble(frame::LerCurrency(zvnumValorUnitario));
      return base::ToCurrency(Dividir(preco, unitario));
    }
    case kPeso:
      return ComVirgula(devolvido, 2);
    default:
      return std::nullopt;
  }
}

}  // namespace sale
