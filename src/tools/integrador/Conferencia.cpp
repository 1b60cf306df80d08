#include "tools/integrador/Conferencia.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "base/Text.h"
#include "base/Windows1252.h"

namespace integrador {
namespace {

constexpr std::string_view kFimDeLinha = "\r\n";

/// The record does not keep the format; the rest of the sentence about it.
struct Recusa {
  std::string motivo;
};

bool SoDigitos(std::string_view texto) {
  return !texto.empty() && std::ranges::all_of(texto, [](char c) { return c >= '0' && c <= '9'; });
}

/// "0" stands for a digit, any other character for itself; as long as the mask.
bool NaMascara(std::string_view texto, std::string_view mascara) {
  if (texto.size() != mascara.size()) return false;
  for (std::size_t i = 0; i < texto.size(); ++i) {
    const bool digito = texto[i] >= '0' && texto[i] <= '9';
    if (mascara[i] == '0' ? !digito : texto[i] != mascara[i]) return false;
  }
  return true;
}

constexpr std::string_view kTresDecimais = "00000000,000";
constexpr std::string_view kDuasDecimais = "000000000,00";

/// A number without needless zeros.
bool Simples(std::string_view texto) {
  return SoDigitos(texto) && (texto.size() == 1 || texto[0] != '0');
}
bool Vazio(std::string_view texto) {
  return texto.empty();
}
bool UmaLetraN(std::string_view texto) {
  return texto == "N";
}
bool Quantidade(std::string_view texto) {
  return NaMascara(texto, kTresDecimais);
}
bool Valor(std::string_view texto) {
  return NaMascara(texto, kDuasDecimais);
}
/// A discount of the line is negative, but a line that bears its share of the sale's discount tells
/// the whole of it without a sign.
bool Desconto(std::string_view texto) {
  if (Valor(texto)) return true;
  return texto.starts_with('-') && Valor(texto.substr(1)) && texto != "-000000000,00";
}
bool DiaDoMes(std::string_view texto) {
  if (!Simples(texto) || texto.size() > 2) return false;
  const int dia = texto.size() == 1 ? texto[0] - '0' : (texto[0] - '0') * 10 + (texto[1] - '0');
  return dia >= 1 && dia <= 31;
}

/// A field of a kind of record: its name, what it must be, and the words that tell that.
struct Campo {
  std::string_view nome;
  bool (*confere)(std::string_view);
  std::string_view esperado;
};

constexpr std::string_view kVazio = "vazio";
constexpr std::string_view kTextoTresDecimais = "8 dígitos, vírgula e 3 decimais";
constexpr std::string_view kTextoDuasDecimais = "9 dígitos, vírgula e 2 decimais";

constexpr Campo kBranco{"reservado", Vazio, kVazio};

constexpr std::array kCabecalho{
    Campo{"tipo do registro", [](std::string_view t) { return t == "00"; }, "00"},
    Campo{"constante", [](std::string_view t) { return t == "65"; }, "65"},
    kBranco,
    Campo{"identificação do consumidor",
          [](std::string_view t) { return t == "1" || t == "2" || t == "3"; }, "1, 2 ou 3"},
    Campo{"código do cliente",
          [](std::string_view t) { return Vazio(t) || t == "0" || NaMascara(t, "00000000"); },
          "0, 8 dígitos ou vazio"},
    Campo{"documento do consumidor",
          [](std::string_view t) {
            return Vazio(t) || NaMascara(t, "000.000.000-00") || NaMascara(t, "00.000.000/0000-00");
          },
          "um CPF ou CNPJ com pontuação, ou vazio"},
    kBranco,
    Campo{"constante", UmaLetraN, "N"},
    kBranco,
    Campo{"documento informado", [](std::string_view t) { return Vazio(t) || UmaLetraN(t); },
          "N ou vazio"},
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    kBranco,
    Campo{"número do caixa", Simples, "um número sem zeros à esquerda"},
    Campo{"impressão", [](std::string_view t) { return UmaLetraN(t) || t == " "; },
          "N ou um espaço"},
    Campo{"versão", [](std::string_view t) { return t == "1.00.00"; }, "1.00.00"},
};

constexpr std::array kItem{
    Campo{"tipo do registro", [](std::string_view t) { return t == "05"; }, "05"},
    Campo{"sequência", [](std::string_view t) { return NaMascara(t, "000"); }, "3 dígitos"},
    Campo{"código do produto",
          [](std::string_view t) { return Vazio(t) || NaMascara(t, "000000"); },
          "6 dígitos ou vazio"},
    Campo{"quantidade", Quantidade, kTextoTresDecimais},
    Campo{"valor unitário", Quantidade, kTextoTresDecimais},
    Campo{"desconto", Desconto, "9 dígitos, vírgula e 2 decimais, com ou sem sinal de menos"},
    Campo{"valor total", Valor, kTextoDuasDecimais},
};

constexpr std::array kPagamento{
    Campo{"tipo do registro", [](std::string_view t) { return t == "10"; }, "10"},
    Campo{"sequência",
          [](std::string_view t) { return NaMascara(t, "00") || (t.size() > 2 && Simples(t)); },
          "2 dígitos"},
    Campo{"código fiscal", [](std::string_view t) { return NaMascara(t, "00"); }, "2 dígitos"},
    Campo{"valor", Valor, kTextoDuasDecimais},
    Campo{"tipo do cartão", [](std::string_view t) { return Vazio(t) || t == "10" || t == "20"; },
          "10, 20 ou vazio"},
    Campo{"constante", [](std::string_view t) { return Vazio(t) || t == "01"; }, "01 ou vazio"},
    Campo{"constante", [](std::string_view t) { return Vazio(t) || t == "01"; }, "01 ou vazio"},
    Campo{"constante", [](std::string_view t) { return Vazio(t) || t == "2"; }, "2 ou vazio"},
    Campo{"valor a prazo", [](std::string_view t) { return Vazio(t) || Valor(t); },
          "9 dígitos, vírgula e 2 decimais, ou vazio"},
    Campo{"parcelas", [](std::string_view t) { return Vazio(t) || t == "01"; }, "01 ou vazio"},
    Campo{"dia do vencimento", [](std::string_view t) { return Vazio(t) || DiaDoMes(t); },
          "1 a 31 sem zeros à esquerda, ou vazio"},
};

using Campos = std::vector<std::string_view>;

[[noreturn]] void Recusar(std::span<const Campo> tabela, std::size_t campo,
                          std::string_view esperado) {
  throw Recusa{"campo " + std::to_string(campo) + " (" + std::string(tabela[campo - 1].nome) +
               "): esperado " + std::string(esperado)};
}

/// Fields are counted from 1, as people tell them.
void Exigir(bool certo, std::span<const Campo> tabela, std::size_t campo,
            std::string_view esperado) {
  if (!certo) Recusar(tabela, campo, esperado);
}

void ConferirCampos(const Campos& campos, std::span<const Campo> tabela) {
  if (campos.size() != tabela.size()) {
    throw Recusa{"tem " + std::to_string(campos.size()) + " campos, esperados " +
                 std::to_string(tabela.size())};
  }
  for (std::size_t i = 0; i < tabela.size(); ++i) {
    Exigir(tabela[i].confere(campos[i]), tabela, i + 1, tabela[i].esperado);
  }
}

void ConferirCabecalho(const Campos& campos) {
  ConferirCampos(campos, kCabecalho);
  const std::string_view tipo = campos[3];
  const std::string_view codigo = campos[4];
  const bool informado = tipo == "2";
  Exigir(
      tipo == "3" ? codigo != "0" : codigo == "0", kCabecalho, 5,
      tipo == "3" ? "8 dígitos ou vazio para a identificação 3" : "0 para a identificação 1 ou 2");
  Exigir(Vazio(campos[5]) != informado, kCabecalho, 6,
         informado ? "um CPF ou CNPJ para a identificação 2" : "vazio para a identificação 1 ou 3");
  Exigir(Vazio(campos[9]) != informado, kCabecalho, 10,
         informado ? "N para a identificação 2" : "vazio para a identificação 1 ou 3");
}

/// What a payment holds after its value, by its fiscal code.
enum class Grupo { kAVista, kCartao, kAPrazo };
struct Meio {
  std::string_view codigo;
  Grupo grupo;
};
constexpr std::array kMeios{Meio{"01", Grupo::kAVista}, Meio{"02", Grupo::kAPrazo},
                            Meio{"03", Grupo::kCartao}, Meio{"08", Grupo::kAPrazo},
                            Meio{"10", Grupo::kAPrazo}, Meio{"17", Grupo::kAVista}};

void ConferirPagamento(const Campos& campos) {
  ConferirCampos(campos, kPagamento);
  const auto* const meio =
      std::ranges::find_if(kMeios, [&](const Meio& m) { return m.codigo == campos[2]; });
  Exigir(meio != kMeios.end(), kPagamento, 3, "01, 02, 03, 08, 10 ou 17");
  constexpr std::size_t kPrimeiroDeCartao = 5;
  constexpr std::size_t kPrimeiroDePrazo = 9;
  constexpr std::size_t kUltimo = 11;
  for (std::size_t campo = kPrimeiroDeCartao; campo <= kUltimo; ++campo) {
    const Grupo dono = campo < kPrimeiroDePrazo ? Grupo::kCartao : Grupo::kAPrazo;
    const bool preenchido = meio->grupo == dono;
    Exigir(Vazio(campos[campo - 1]) != preenchido, kPagamento, campo,
           std::string(preenchido ? "preenchido" : "vazio") + " para o código fiscal " +
               std::string(meio->codigo));
  }
  Exigir(meio->grupo != Grupo::kAPrazo || campos[8] == campos[3], kPagamento, kPrimeiroDePrazo,
         "o mesmo valor do campo 4");
}

/// Numbers that go up by one from 1 and may start over; written modulo `modulo`
/// unless that is 0.
class Sequencia {
 public:
  explicit Sequencia(int modulo) : modulo_(modulo) {}

  void Exigir(const Campos& campos, std::span<const Campo> tabela) {
    constexpr std::size_t kCampo = 2;
    int numero = 0;
    for (const char c : campos[kCampo - 1].substr(0, 6)) numero = numero * 10 + (c - '0');
    const int seguinte = modulo_ == 0 ? ultimo_ + 1 : (ultimo_ + 1) % modulo_;
    if (numero != 1 && numero != seguinte) {
      Recusar(tabela, kCampo,
              std::to_string(seguinte) + (ultimo_ == 0 ? "" : ", ou 1 ao recomeçar"));
    }
    ultimo_ = numero;
  }

 private:
  int modulo_;
  int ultimo_ = 0;
};

/// The records in their order.
class Leitura {
 public:
  void Comecar() {
    ++numero_;
    nome_.clear();
  }

  void Ler(std::string_view registro) {
    if (registro.size() < 2 || registro.front() != '|' || registro.back() != '|') {
      throw Recusa{"não começa e termina com a barra vertical"};
    }
    registro.remove_prefix(1);
    Campos campos;
    while (!registro.empty()) {
      const std::size_t fim = registro.find('|');
      campos.push_back(registro.substr(0, fim));
      registro.remove_prefix(fim + 1);
    }
    const std::string_view tipo = campos.front();
    if (tipo == "00") return LerCabecalho(campos);
    if (tipo == "05") return LerItem(campos);
    if (tipo == "10") return LerPagamento(campos);
    throw Recusa{"campo 1 (tipo do registro): esperado 00, 05 ou 10"};
  }

  void Encerrar() const {
    if (numero_ == 0) throw Recusa{"está vazio"};
    if (resultado.itens == 0) throw Recusa{"o arquivo não tem itens"};
    if (resultado.pagamentos == 0) throw Recusa{"o arquivo não tem pagamentos"};
  }

  /// What the sentence begins with.
  std::string Onde() const {
    if (numero_ == 0) return "Arquivo";
    const std::string nome = nome_.empty() ? "" : " (" + nome_ + ")";
    return "Registro " + std::to_string(numero_) + nome;
  }

  Conferencia resultado;

 private:
  void LerCabecalho(const Campos& campos) {
    nome_ = "cabeçalho";
    if (numero_ != 1) throw Recusa{"só pode haver um cabeçalho, no começo do arquivo"};
    ConferirCabecalho(campos);
  }
  void LerItem(const Campos& campos) {
    nome_ = "item";
    if (numero_ == 1) throw Recusa{"o arquivo não começa com o cabeçalho"};
    if (resultado.pagamentos > 0) throw Recusa{"os itens vêm antes dos pagamentos"};
    ConferirCampos(campos, kItem);
    itens_.Exigir(campos, kItem);
    ++resultado.itens;
  }
  void LerPagamento(const Campos& campos) {
    nome_ = "pagamento";
    if (numero_ == 1) throw Recusa{"o arquivo não começa com o cabeçalho"};
    if (resultado.itens == 0) throw Recusa{"os itens vêm antes dos pagamentos"};
    ConferirPagamento(campos);
    pagamentos_.Exigir(campos, kPagamento);
    ++resultado.pagamentos;
  }

  int numero_ = 0;
  std::string nome_;
  Sequencia itens_{1000};
  Sequencia pagamentos_{0};
};

bool TemSoTexto(std::string_view registro) {
  constexpr unsigned char kPrimeiroTexto = 0x20;
  constexpr unsigned char kApagar = 0x7F;
  return std::ranges::all_of(registro, [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= kPrimeiroTexto && byte != kApagar && base::FromWindows1252(c).has_value();
  });
}

}  // namespace

Conferencia Conferir(std::string_view bytes) {
  Leitura leitura;
  try {
    while (!bytes.empty()) {
      const std::size_t fim = bytes.find(kFimDeLinha);
      const std::string_view registro = bytes.substr(0, fim);
      leitura.Comecar();
      if (!TemSoTexto(registro)) throw Recusa{"tem um byte que não é texto em Windows-1252"};
      if (fim == std::string_view::npos) throw Recusa{"não termina com CR LF"};
      leitura.Ler(registro);
      bytes.remove_prefix(fim + kFimDeLinha.size());
    }
    leitura.Encerrar();
  } catch (const Recusa& recusa) {
    leitura.resultado.recusa = leitura.Onde() + ": " + recusa.motivo + ".";
  }
  return leitura.resultado;
}

}  // namespace integrador
