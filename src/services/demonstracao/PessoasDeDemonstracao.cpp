#include "services/demonstracao/DadosDeDemonstracao.h"

namespace services::demonstracao {
namespace {

constexpr Usuario kUsuarios[] = {
    {"marina", "girassol-41", "administradora: pode tudo", true, true, true, true, true, true},
    {"paulo", "trovoada-27",
     "supervisor: altera descontos e autoriza fiado, saídas e cancelamentos", false, true, true,
     true, true, true},
    {"renata", "pitanga-63", "operadora: altera descontos, vende a crédito e vê os relatórios",
     false, true, true, true, false, false},
    {"caio", "ladrilho-85", "operador em treinamento: vende sem descontos nem fiado", false, false,
     false, false, false, false},
};

constexpr Pessoa kPessoas[] = {
    {"Consumidor", "Consumidor final", ""},
    {"Ana Clara", "Ana Clara Figueira Duarte", "Pipoca"},
    {"Bento", "Bento Camargo Vilela", "Trovão,Faísca"},
    {"Célia da padaria", "Célia Aparecida Montanari", "Mel"},
    {"Dudu", "Eduardo Sampaio Leal", "Rex,Bob,Nina"},
    {"Dona Elza", "Elza Maria Quintanilha", "Chiquinha"},
    {"Fabiano", "Fabiano Torquato Neves", "Zeus"},
    {"Canil Serra Azul", "Serra Azul Criação de Cães Ltda.", "Ariel,Baco,Cora"},
    {"Gi", "Giovana Prado Albuquerque", "Amora"},
    {"Seu Hélio", "Hélio Bragança Tavares", "Tobias"},
    {"Iara", "Iara Nogueira Lins", "Lua,Sol"},
    {"Jô", "Joana D'Ávila Peçanha", "Farofa"},
    {"Kaká", "Karina Bueno Sarmento", "Paçoca,Canjica"},
    {"Lúcio", "Lúcio Ferraz Monteiro", "Barão"},
    {"Malu", "Maria Luísa Conceição Rangel", "Frida"},
    {"Pet Hotel Quintal", "Quintal Hospedagem de Animais Ltda.", "Thor,Jade"},
    {"Nando", "Fernando Aguiar Bastos", "Costela"},
    {"Olívia", "Olívia Pacheco Serrano", "Mingau,Cacau"},
    {"Pedrinho", "Pedro Henrique Valadares", "Bolt"},
    {"Dra. Quitéria", "Quitéria Moura Falcão", "Duque"},
    {"Raul", "Raul Esteves Caldeira", ""},
    {"Sandra do 302", "Sandra Regina Hortêncio", "Mimi"},
    {"Tião", "Sebastião Gouveia Prates", "Valente"},
    {"Úrsula", "Úrsula Wagner Kretzer", "Fritz,Heidi"},
    {"Vovó Nair", "Nair Assunção Peixoto", "Bilu"},
    {"Wal", "Walquíria Santana Meireles", "Princesa"},
    {"Ximena", "Ximena Ribas Cordeiro", "Simba"},
    {"Yuri", "Yuri Mazzini Carneiro", ""},
    {"Zeca", "José Carlos Andrade Muniz", "Pretinha,Tigrão"},
    {"Abrigo Patinhas", "Associação Abrigo Patinhas do Vale", "Esperança,Vitória,Sorte"},
    {"Bia", "Beatriz Loureiro Cunha", "Caramelo"},
    {"Cadu", "Carlos Eduardo Simas", "Luke,Leia"},
    {"Débora", "Débora Vasconcelos Brandão", "Belinha"},
    {"Emília", "Emília Siqueira Antunes", "Visconde"},
    {"Chico", "Francisco Teles Barroso", "Sultão"},
    {"Graça", "Maria das Graças Fontoura", "Fofinha"},
    {"Hugo", "Hugo Mendonça Prestes", "Goku"},
    {"Inês", "Inês Coutinho Malta", ""},
    {"Júlia e Rui", "Júlia Amaral Sobrinho", "Pingo,Gota"},
    {"Leandro", "Leandro Pimentel Rocha", "Spock"},
};

constexpr Funcionario kFuncionarios[] = {
    {"Dra. Helena", true, false, 0, {20, 25, 25, 30, 0, 0, 0, 10}},
    {"Dr. Otávio", true, false, 0, {20, 25, 25, 30, 0, 0, 0, 10}},
    {"Tati", true, false, 0, {0, 0, 0, 0, 30, 5, 0, 5}},
    {"Juninho", true, true, 15, {0, 0, 0, 0, 0, 0, 0, 0}},
    {"Moacir", true, false, 0, {0, 0, 0, 0, 0, 10, 40, 5}},
    {"Renata", false, false, 0, {0, 0, 0, 0, 0, 0, 0, 0}},
};

}  // namespace

std::span<const Usuario> Usuarios() {
  return kUsuarios;
}
std::span<const Pessoa> Pessoas() {
  return kPessoas;
}
std::span<const Funcionario> Funcionarios() {
  return kFuncionarios;
}

}  // namespace services::demonstracao
