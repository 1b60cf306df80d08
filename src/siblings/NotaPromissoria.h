#pragma once

#include <string>

#include "base/Currency.h"
#include "base/DateTime.h"

namespace siblings {

/// Who stands on a printed document for the company; what is not registered is empty.
struct Empresa {
  std::string nomeFantasia = {}, razaoSocial = {}, cnpj = {}, endereco = {}, municipio = {};
  std::string uf = {}, telefone = {};

  /// The name under which it does business in law, or else the one over its door.
  const std::string& NomeLegal() const { return razaoSocial.empty() ? nomeFantasia : razaoSocial; }
  /// "Vale Claro/SP".
  std::string Praca() const;
};

/// Who signs a promissory note.
struct Emitente {
  std::string nome, documento, endereco;
};

/// The words of a promissory note, each of its lines apart.
struct NotaPromissoria {
  std::string numero;      ///< "Nº 123-1/2".
  std::string vencimento;  ///< "Vencimento: 22 de dezembro de 2026".
  std::string valor;       ///< "R$ 1.200,50".
  std::string promessa;    ///< From the day on which it falls due to the word "quantia".
  std::string quantia;     ///< The value written out.
  std::string praca;       ///< In what money and where it is paid.
  std::string localEData;  ///< "Vale Claro/SP, 22 de novembro de 2026".
  Emitente emitente;
};

/// Words a note. `numero` tells this note from the company's other ones.
NotaPromissoria RedigirNotaPromissoria(const Empresa& empresa, const Emitente& emitente,
                                       const std::string& numero, base::DateTime emissao,
                                       base::DateTime vencimento, base::Currency valor);

}  // namespace siblings
