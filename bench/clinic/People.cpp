#include "clinic/People.h"

#include <cmath>

namespace bench {
namespace {

using Names = std::vector<std::string_view>;

// The most frequent first.
const Names kGiven{
    "Maria",    "José",      "Ana",       "João",     "Antônio",   "Francisco", "Carlos",
    "Paulo",    "Pedro",     "Lucas",     "Luiz",     "Marcos",    "Juliana",   "Gabriel",
    "Rafael",   "Fernanda",  "Patrícia",  "Aline",    "Daniel",    "Marcelo",   "Bruno",
    "Eduardo",  "Felipe",    "Rodrigo",   "Manoel",   "Mateus",    "Márcia",    "Adriana",
    "Sandra",   "Camila",    "Amanda",    "Bruna",    "Jéssica",   "Letícia",   "Júlia",
    "Luciana",  "Vanessa",   "Mariana",   "Vera",     "Vitória",   "Larissa",   "Cláudia",
    "Beatriz",  "Luana",     "Rita",      "Sônia",    "Renata",    "Eliane",    "Josefa",
    "Simone",   "Natália",   "Cristiane", "Carla",    "Débora",    "Rosângela", "Jaqueline",
    "Rosa",     "Daniela",   "Aparecida", "Marlene",  "Terezinha", "Raimunda",  "Andréia",
    "Fabiana",  "Lúcia",     "Raquel",    "Ângela",   "Rafaela",   "Joana",     "Luzia",
    "Elaine",   "Daiane",    "Alice",     "Gabriela", "Tatiane",   "Isabela",   "Viviane",
    "Cecília",  "Helena",    "Sofia",     "Lorena",   "Heloísa",   "Tereza",    "Irene",
    "Raimundo", "Sebastião", "Marcelino", "Jorge",    "Geraldo",   "Adriano",   "Leandro",
    "Fernando", "Fábio",     "Márcio",    "Tiago",    "André",     "Gustavo",   "Guilherme",
    "Leonardo", "Diego",     "Vinícius",  "Sérgio",   "Roberto",   "Alexandre", "Renato",
    "Ricardo",  "Joaquim",   "Benedito",  "Mário",    "Henrique",  "Otávio",    "Caio",
    "Murilo",   "Danilo",    "Igor",      "Samuel",   "Davi",      "Artur",     "Enzo",
    "Miguel",   "Heitor",    "Bernardo",  "Nicolas",  "Valentina", "Lívia",     "Manuela",
    "Yasmin",   "Lavínia",   "Clarice",   "Ester",    "Eunice",    "Glória",    "Iracema"};
const Names kFamilies{
    "Silva",    "Santos",     "Oliveira",  "Souza",     "Pereira",   "Ferreira", "Rodrigues",
    "Alves",    "Lima",       "Gomes",     "Costa",     "Ribeiro",   "Martins",  "Carvalho",
    "Almeida",  "Lopes",      "Soares",    "Fernandes", "Vieira",    "Barbosa",  "Rocha",
    "Dias",     "Nascimento", "Andrade",   "Moreira",   "Nunes",     "Marques",  "Machado",
    "Mendes",   "Freitas",    "Cardoso",   "Ramos",     "Gonçalves", "Santana",  "Teixeira",
    "Araújo",   "Cavalcante", "Monteiro",  "Moura",     "Castro",    "Correia",  "Campos",
    "Miranda",  "Batista",    "Pinto",     "Moraes",    "Barros",    "Borges",   "Cruz",
    "Duarte",   "Cunha",      "Reis",      "Aguiar",    "Azevedo",   "Farias",   "Neves",
    "Pires",    "Brito",      "Guimarães", "Siqueira",  "Tavares",   "Coelho",   "Sales",
    "Peixoto",  "Bezerra",    "Xavier",    "Fonseca",   "Melo",      "Nogueira", "Macedo",
    "Queiroz",  "Assis",      "Bastos",    "Bueno",     "Camargo",   "Leite",    "Magalhães",
    "Medeiros", "Menezes",    "Paiva",     "Prado",     "Rezende",   "Sampaio",  "Torres",
    "Valente",  "Vargas",     "Viana",     "Toledo",    "Pacheco",   "Franco",   "Leal",
    "Luz",      "Maia",       "Matos",     "Porto",     "Sá",        "Serra",    "Trindade",
    "Amaral",   "Amorim",     "Antunes",   "Arruda",    "Braga",     "Caldas",   "Couto",
    "Esteves",  "Figueiredo", "Fontes",    "Furtado",   "Galvão",    "Jardim",   "Lacerda"};
const Names kBetween{"da", "dos", "de", "do"};
const Names kDiminutives{"Zé",   "Nenê",  "Bia",  "Chico",     "Duda",      "Gabi", "Juju", "Lu",
                         "Tati", "Nando", "Rafa", "Dona Cida", "Seu Tonho", "Vovó", "Guto", "Malu"};
const Names kSyllables{"qui", "xo",  "zam", "bre", "tho", "vul", "gue", "jar",
                       "nhe", "pli", "dru", "cko", "wel", "fri", "ybá", "kto"};

std::string RareFamily(std::uint64_t number) {
  const std::size_t count = kSyllables.size();
  std::string family;
  for (int i = 0; i < 4; ++i, number /= count) family += kSyllables[number % count];
  return family;
}

/// How many rare families there are.
constexpr std::uint64_t kRareFamilies = std::uint64_t{16} * 16 * 16 * 16;

}  // namespace

std::string_view People::Pick(const std::vector<std::string_view>& names) {
  // The tenth part of a name's place in the list falls off like the names in a telephone book.
  constexpr double kUnevenness = 2.2;
  const double at = std::pow(std::uniform_real_distribution<>(0, 1)(chance_), kUnevenness);
  return names[static_cast<std::size_t>(at * static_cast<double>(names.size()))];
}

bool People::Chance(double part) {
  return std::uniform_real_distribution<>(0, 1)(chance_) < part;
}

People::Person People::Next() {
  const std::string given(Pick(kGiven));
  std::string name = given;
  if (Chance(0.4)) name.append(" ").append(Pick(kGiven));
  if (Chance(0.6)) name.append(" ").append(Pick(kFamilies));
  if (Chance(0.3)) name.append(" ").append(Pick(kBetween));
  // Some 300,000 of a million bear one of 65,536 names: four or five each.
  name += ' ';
  name += Chance(0.3) ? RareFamily(chance_() % kRareFamilies) : std::string(Pick(kFamilies));
  return {Chance(0.4) ? std::string(Pick(kDiminutives)) : given, std::move(name)};
}

std::vector<std::string> People::RareFamilies(std::size_t count) {
  std::vector<std::string> families;
  constexpr std::uint64_t kStep = 7919;
  for (std::size_t i = 0; i < count; ++i) families.push_back(RareFamily(i * kStep % kRareFamilies));
  return families;
}

}  // namespace bench
