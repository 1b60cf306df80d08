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
  EXPECT_EQ(Found(tidy::CheckLengths), "");
  EXPECT_EQ(Found(tidy::CheckCalls), "");
  EXPECT_EQ(Found(tidy::CheckWords), "");
  EXPECT_EQ(Found(tidy::CheckGuard), "");
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
  EXPECT_NE(Text(tidy::CheckGuard({"src/base/A.h", "// A.\n#pragma once\n"})), "");
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

TEST(Checks, KnowLongFilesLinesAndFunctions) {
  const auto repeated = [](const std::string& line, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += line;
    return text;
  };
  const auto found = [](const std::string& text) {
    return Text(tidy::CheckLengths({"src/base/A.cpp", text}));
  };
  EXPECT_EQ(found(repeated("int a;\n", 600)), "");
  EXPECT_EQ(found(repeated("int a;\n", 601)), "src/base/A.cpp:601: the file is too long\n");
  EXPECT_EQ(found("//" + repeated("ç", 98) + "\n"), "") << "characters, not bytes";
  EXPECT_EQ(found("\n//" + repeated("ç", 99) + "\n"), "src/base/A.cpp:2: 101 columns\n");
  const std::string body = repeated("  Call(\"}\", '{', 10'000);  // }\n", 68);
  for (const std::string head : {"void F(int a) {\n", "#define BRACE {\nB::B() : c_(1), d_{2} {\n",
                                 "class A {\n  auto F(T a) const -> int {\n", "TEST(A, B) {\n"}) {
    EXPECT_EQ(found(head + body + "}\n"), "") << head;
    EXPECT_NE(found(head + body + "a();\n}\n").find("a function of 71 lines"), std::string::npos)
        << head;
  }
  const std::string rows = repeated("      {1, 2, {3}},\n", 100);
  for (const std::string& table :
       {"constexpr int kTable[] = {\n" + rows + "};\n",
        "F::F() {\n  Arrange({{9, 6},\n" + rows + "});\n}\n",
        "void F() {\n  Use(R\"(\n" + repeated("  a | b\n", 100) + ")\");\n}\n",
        "namespace a {\n" + repeated("void F();\n", 100) + "}\n"}) {
    EXPECT_EQ(found(table), "") << table.substr(0, 80);
  }
}

}  // namespace
