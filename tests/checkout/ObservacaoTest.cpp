#include "checkout/CheckoutTest.h"
#include "checkout/Observacao.h"

namespace checkout {
namespace {

// The animals of the lines, in order, and the end of the note that they make. A line without an
// animal counts once, as long as nothing else stands in the list.
TEST(ObservacaoTest, NamesTheAnimalsOfTheSale) {
  for (const std::vector<std::string>& row : support::Table(R"(
    Rex               | "\nAnimal: Rex"
    Rex,REX,rex       | "\nAnimal: Rex"
    Rex,Bob,Rex,Nina  | "\nAnimais: Rex e Bob e Nina"
    Rexona,Rex        | "\nAnimal: Rexona"
    Rex,Rexona        | "\nAnimais: Rex e Rexona"
    Órion,órion       | "\nAnimal: Órion"
    -                 | "\nAnimal: "
    -,-,-             | "\nAnimal: , "
    Rex,-             | "\nAnimal: Rex"
    -,Rex             | "\nAnimais:  e Rex"
    -,-,Rex           | "\nAnimais:  e , Rex"
  )")) {
    std::vector<Lines::Line> lines;
    for (const std::string& name : base::Split(row[0], ',')) {
      lines.push_back({name == "-" ? "" : name, "1"});
    }
    EXPECT_EQ(ObservacaoDaVenda("12", "Ana", "", Lines(lines)),
              "Cliente: 12-Ana" + base::Replace(row[1], "\\n", "\n"))
        << row[0];
  }
}

}  // namespace
}  // namespace checkout
