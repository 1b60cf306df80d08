#pragma once

#include <cstdint>
#include <span>
#include <string_view>

/// The invented people, goods and work of the demonstration clinic. Amounts are in centavos,
/// percentages in whole percent.
namespace services::demonstracao {

struct Usuario {
  std::string_view nome, senha, papel;
  bool administrador, descontos, relatorios, credito, saidas, cancelar;
};
std::span<const Usuario> Usuarios();

struct Pessoa {
  std::string_view apelido, nome;
  std::string_view animais;  ///< Names parted by commas; empty for none.
};
/// Forty, in the order of their codes from 1; the first is the walk-in customer.
std::span<const Pessoa> Pessoas();

/// A kind of goods, which every brand offers in three sizes.
struct Linha {
  std::string_view nome, grupo, subgrupo, ncm;
  std::string_view tamanhos[3];
  std::int32_t precos[3];
};
std::span<const Linha> Linhas();
std::span<const std::string_view> Marcas();

/// Goods sold by weight, under a code that the labels of the scale carry; priced by the kilogram.
struct Granel {
  std::int32_t codigo;
  std::string_view nome;
  std::int32_t preco;
};
std::span<const Granel> Graneis();

struct TipoDeServico {
  std::int32_t numero;
  std::string_view nome;
};
std::span<const TipoDeServico> TiposDeServico();

struct Servico {
  std::int32_t tipo;
  std::string_view nome;
  std::int32_t preco;
};
std::span<const Servico> Servicos();

struct Funcionario {
  std::string_view apelido;
  bool comissionado, unica;
  std::int32_t percentualUnico;
  /// Clinical, simple, medium and complex surgery, baths, boarding, training, others.
  std::int32_t percentuais[8];
};
std::span<const Funcionario> Funcionarios();

}  // namespace services::demonstracao
