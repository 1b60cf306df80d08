#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Record.h"

namespace frame {

/// What became of reading the company record.
struct LeituraDaEmpresa {
  /// The record set, its cursor on the one record if there is one; null when there is nothing to
  /// read.
  base::RecordSetPtr empresa;
  /// The read failed or was refused, and the operator has been told.
  bool falhou = false;

  /// Whether there is a company.
  bool Cadastrada() const { return empresa && empresa->RecordCount() > 0; }
};

/// Reads the one company record; a fault or refusal is told to the operator.
LeituraDaEmpresa LerEmpresa();

/// The name that stands on a document; nothing when there is no company to print one for, or it
/// could not be read: the operator has been told.
std::optional<std::string> EmpresaParaImprimir();
/// A document would be empty.
inline constexpr std::string_view kSemDadosParaImprimir =
    "Não foi possível imprimir porque os dados não foram localizados.\n"
    "Tente a impressão novamente";

}  // namespace frame
