#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/servicos/Servico.h"

namespace servicos::ZOVA_N_OSParaBD {

/// The folders in which the fiscal application is met. 1 means that a file could not be written.
class clsOSExportarRegistros : public ServicoDeNegocio {
 public:
  static constexpr std::string_view kIdentificador = "ZOVA_N_OSParaBD.clsOSExportarRegistros";
  static constexpr std::string_view kMembros =
      "ExportarDadosCFeSATParaArquivo ExportarDadosParaCancelarCFeSAT "
      "NomeCompleDoArquivoDeEnvioComDadosCFeSAT NomeCompleDoArquivoDeRetornoComDadosCFeSAT";

  virtual std::int16_t ExportarDadosCFeSATParaArquivo(std::string_view /*cabecalho*/,
                                                      std::string_view /*itens*/,
                                                      std::string_view /*pagamentos*/) {
    Ausente();
  }
  virtual std::int16_t ExportarDadosParaCancelarCFeSAT(std::string_view /*texto*/) { Ausente(); }
  virtual std::string NomeCompleDoArquivoDeEnvioComDadosCFeSAT() { Ausente(); }
  virtual std::string NomeCompleDoArquivoDeRetornoComDadosCFeSAT() { Ausente(); }

  /// No part of the called contract, so that a service may leave it out: whether the outbound file
  /// of the last export was written for certain. The fiscal application may take it away sooner
  /// than anybody can look for it.
  virtual bool EnvioFoiGravado() { return false; }
};

}  // namespace servicos::ZOVA_N_OSParaBD
