#include "siblings/NotaPromissoria.h"

#include "base/Numbers.h"
#include "siblings/PorExtenso.h"

namespace siblings {

std::string Empresa::Praca() const {
  return municipio.empty() || uf.empty() ? municipio : municipio + "/" + uf;
}

NotaPromissoria RedigirNotaPromissoria(const Empresa& empresa, const Emitente& emitente,
                                       const std::string& numero, base::DateTime emissao,
                                       base::DateTime vencimento, base::Currency valor) {
  const std::string praca = empresa.Praca();
  const std::string cnpj = empresa.cnpj.empty() ? "" : ", CNPJ " + empresa.cnpj;
  const std::string dia = DataComMesPorExtenso(emissao);
  return {
      .numero = "Nº " + numero,
      .vencimento = "Vencimento: " + DataComMesPorExtenso(vencimento),
      .valor = "R$ " + base::FormatMoney(valor),
      .promessa = DataPorExtenso(vencimento) +
                  ", pagarei por esta única via de NOTA PROMISSÓRIA a " + empresa.NomeLegal() +
                  cnpj + ", ou à sua ordem, a quantia de",
      .quantia = ValorPorExtenso(valor),
      .praca =
          "em moeda corrente deste país" + (praca.empty() ? "." : ", pagável em " + praca + "."),
      .localEData = praca.empty() ? dia : praca + ", " + dia,
      .emitente = emitente,
  };
}

}  // namespace siblings
