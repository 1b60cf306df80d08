// The house rules over the whole source tree, and each of them over something that breaks it.

#include <gtest/gtest.h>

#include "Checks.h"

namespace {

using tidy::Findings;
using tidy::Source;

std::string Text(const Findings& findings) {
  std::string all;
  for (const std::string& each : findings) all += each + "\n";
  return all;
}

/// What a check finds in all files of the tree.
template <class Check>
std::string Found(Check check) {
  std::string all;
  for (const Source& file : tidy::Tree()) all += Text(check(file));
  return all;
}

TEST(Tree, KeepsTheHouseRules) {
  EXPECT_GT(tidy::Tree().size(), 200U) << "the tree is where it is looked for";
  EXPECT_EQ(Found(tidy::CheckIncludes), "");
  EXPECT_EQ(Found(tidy::CheckLength), "");
  EXPECT_EQ(Found(tidy::CheckCalls), "");
  EXPECT_EQ(Found(tidy::CheckWords), "");
  EXPECT_EQ(Found(tidy::CheckContract), "");
  EXPECT_EQ(Text(tidy::CheckDeadHeaders(tidy::Tree())), "");
}

// Each check can fail, and passes what is right.

TEST(Checks, FindWhatBreaksThem) {
  const std::pair<const char*, const char*> includes[] = {
      {"src/base/Text.cpp", "#include \"platform/Form.h\"\n"},
      {"src/frame/servicos/X.cpp", "#include \"frame/Sessao.h\"\n"},
      {"src/register/Movimento.cpp", "#include \"sale/Venda.h\"\n"},
      {"src/services/Caixa.cpp", "#include \"platform/Form.h\"\n"},
      {"src/services/venda/A.cpp", "#include \"services/contrato/Fabricas.h\"\n"},
      {"src/services/banco/A.cpp", "#include \"services/Banco.h\"\n"},
      {"src/tools/roteiro/Main.cpp", "#include <QString>\n"},
      {"src/siblings/Ncm.cpp", "#include <SQLiteCpp/Database.h>\n"},
      {"src/frame/Ini.cpp", "#include <fstream>\n"},
  };
  for (const auto& [path, text] : includes) {
    EXPECT_NE(Text(tidy::CheckIncludes({path, text})), "") << path << ": " << text;
  }
  for (const char* line : {"x = std::stod(text);", "out.imbue(a);", "auto a = std::getenv(name);",
                           "auto t = system_clock::now();", "auto t = std::time(nullptr);"}) {
    EXPECT_NE(Text(tidy::CheckCalls({"src/services/A.cpp", line})), "") << line;
  }
  const std::string words[] = {std::string("as the Specifi") + "cation says",
                               std::string("the sp") + "ec says", std::string("Part") + " 2.3",
                               std::string("/work") + "/main/src"};
  for (const std::string& line : words) {
    EXPECT_NE(Text(tidy::CheckWords({"docs/a.md", line})), "") << line;
  }
  EXPECT_EQ(Text(tidy::CheckContract({"src/frame/servicos/ZOVA_A.h",
                                      "kMembros = \"A B\";\nvirtual int A() { Ausente(); }\n"
                                      "virtual void C(int /*a*/,\n int) {\n Ausente();\n}\n"
                                      "virtual bool D() { return false; }\n"})),
            "src/frame/servicos/ZOVA_A.h:1: B is declared or named in kMembros, but not both\n"
            "src/frame/servicos/ZOVA_A.h:1: C is declared or named in kMembros, but not both\n");
  std::string lines;
  for (int i = 0; i < 600; ++i) lines += "int a;\n";
  EXPECT_EQ(Text(tidy::CheckLength({"src/base/A.cpp", lines})), "");
  EXPECT_EQ(Text(tidy::CheckLength({"src/base/A.cpp", lines + "int a;\n"})),
            "src/base/A.cpp:601: the file is too long\n");
  EXPECT_EQ(Text(tidy::CheckDeadHeaders({{"src/base/A.h", "#include \"base/A.h\"\n"},
                                         {"src/base/B.h", ""},
                                         {"src/base/B.cpp", "#include \"base/B.h\"\n"}})),
            "src/base/A.h:1: nobody includes this header\n");
}

TEST(Checks, PassWhatIsRight) {
  const std::pair<const char*, const char*> includes[] = {
      {"src/sale/Venda.cpp", "#include \"register/Movimento.h\"\n#include <vector>\n"},
      {"src/services/Caixa.cpp", "#include \"frame/servicos/X.h\"\n#include <libpq-fe.h>\n"},
      {"src/base/Text.cpp", "const char* a = R\"(\n#include \"sale/Venda.h\"\n)\";\n"},
  };
  for (const auto& [path, text] : includes) {
    EXPECT_EQ(Text(tidy::CheckIncludes({path, text})), "") << text;
  }
  for (const char* line : {"// std::stod(text)", "Log(\"getenv(x)\");", "value.time(row);"}) {
    EXPECT_EQ(Text(tidy::CheckCalls({"src/services/A.cpp", line})), "") << line;
  }
  EXPECT_EQ(Text(tidy::CheckWords({"docs/a.md", "the work/home balance is special"})), "");
}

}  // namespace
