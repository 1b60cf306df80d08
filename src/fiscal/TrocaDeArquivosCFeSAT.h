#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace fiscal {

/// The exchange with the outside fiscal application, which takes the file of a sale away and leaves
/// its answer in another. One instance lives as long as a checkout: what failed readings there were
/// counts for the sale's next try too.
class TrocaDeArquivosCFeSAT {
 public:
  /// Hands the records over and waits for the answer, letting the screens live and asking the
  /// operator when that takes long. True when the sale may go on: the key of the coupon then stands
  /// in ChaveSAT, or the fiscal side refused it and the operator was told. A host that ends
  /// meanwhile all the same takes the records back, unless the application has taken them.
  bool ExportarDadosCFeSATParaArquivo(std::string_view cabecalho, std::string_view itens,
                                      std::string_view pagamentos);

  /// 1 when the file says that the coupon was refused, the operator having been told; else 0.
  /// Whether to read again stands in the status. Raises an error when the file could not be read
  /// after the pause either.
  std::int16_t LerArquivoDeRetornoCFeSAT(const std::string& nomeDoArquivo);

 private:
  /// Ends the exchange by what the return file says.
  bool Concluir(const std::string& envio, const std::string& retorno);
  std::int16_t Interpretar(std::string_view bytes);

  std::int16_t TentativasDeLeituraDoRetorno = 0;
  /// 0 nothing to repeat; 1 to 3 to be read again; 4 given up.
  std::int16_t StatusDaLeituraDoRetorno = 0;
};

}  // namespace fiscal
