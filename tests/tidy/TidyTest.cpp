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

TEST(Tree, IsWhereItIsLookedFor) {
  int code = 0, words = 0;
  for (const Source& file : tidy::Tree()) {
    code += file.IsCode() && file.IsUnder("src/base/") ? 1 : 0;
    words += file.path == "CMakeLists.txt" || file.path == "tests/tidy/TidyTest.cpp" ? 1 : 0;
  }
  EXPECT_GT(code, 10);
  EXPECT_EQ(words, 2);
}

TEST(Tree, IncludesOnlyWhatEachFloorSees) {
  EXPECT_EQ(Found(tidy::CheckIncludes), "");
}
TEST(Tree, HasNoLongLinesFilesOrFunctions) {
  EXPECT_EQ(Found(tidy::CheckLengths), "");
}
TEST(Tree, LooksAtTheMachineOnlyWhereItMay) {
  EXPECT_EQ(Found(tidy::CheckCalls), "");
}
TEST(Tree, SpeaksAsItsOwnDeveloperWould) {
  EXPECT_EQ(Found(tidy::CheckWords), "");
}
TEST(Tree, GuardsItsHeaders) {
  EXPECT_EQ(Found(tidy::CheckGuard), "");
}
TEST(Tree, HasNoDeadHeaders) {
  EXPECT_EQ(Text(tidy::CheckDeadHeaders(tidy::Tree())), "");
}

// Each check can fail, and passes what is right.

TEST(Includes, BetweenFloors) {
  const auto found = [](const char* path, const char* line) {
    return Text(tidy::CheckIncludes({path, line}));
  };
  const std::pair<const char*, const char*> right[] = {
      {"src/base/Text.cpp", "#include \"base/Text.h\"\n"},
      {"src/frame/Grade.cpp", "#include \"platform/Form.h\"\n#include \"frame/servicos/X.h\"\n"},
      {"src/frame/servicos/X.cpp", "#include \"base/Record.h\"\n"},
      {"src/sale/Venda.cpp", "#include \"register/Movimento.h\"\n#include <vector>\n"},
      {"src/services/Caixa.cpp", "#include \"frame/servicos/X.h\"\n#include <pqxx/pqxx>\n"},
      {"src/desktop/Main.cpp", "#include <QApplication>\n#include \"services/Banco.h\"\n"},
      {"src/tools/banco/Main.cpp", "#include <sqlite3.h>\n"},
      {"src/platform/Files.cpp", "#include <filesystem>\n#include <unistd.h>\n"},
      {"tests/desktop/ViewTest.cpp", "#include <QtTest/QTest>\n"},
      {"tests/sale/VendaTest.cpp", "#include \"services/Banco.h\"\n#include \"Sample.h\"\n"},
      {"src/base/Text.cpp",
       "// #include \"sale/Venda.h\"\nconst char* a = \"#include <QLabel>\";\n"},
      {"src/base/Text.cpp", "const char* a = R\"(\n#include \"sale/Venda.h\"\n)\";\n"},
      {"src/base/Text.cpp", "/*\n#include \"sale/Venda.h\"\n*/\n"},
  };
  for (const auto& [path, text] : right) EXPECT_EQ(found(path, text), "") << text;

  const std::pair<const char*, const char*> wrong[] = {
      {"src/base/Text.cpp", "#include \"platform/Form.h\"\n"},
      {"src/platform/Form.cpp", "#include \"frame/servicos/X.h\"\n"},
      {"src/frame/servicos/X.cpp", "#include \"frame/Sessao.h\"\n"},
      {"src/frame/servicos/X.cpp", "#include \"platform/Form.h\"\n"},
      {"src/register/Movimento.cpp", "#include \"sale/Venda.h\"\n"},
      {"src/services/Caixa.cpp", "#include \"platform/Form.h\"\n"},
      {"src/services/Caixa.cpp", "#include \"frame/Sessao.h\"\n"},
      {"src/tools/Main.cpp", "#include \"desktop/Main.h\"\n"},
      {"src/tools/roteiro/Main.cpp", "#include <QString>\n"},
      {"src/entry/Caixa.cpp", "#include <QtWidgets/QLabel>\n"},
      {"tests/sale/VendaTest.cpp", "#include <QApplication>\n"},
      {"src/siblings/Ncm.cpp", "#include <SQLiteCpp/Database.h>\n"},
      {"src/desktop/Main.cpp", "#include <libpq-fe.h>\n"},
      {"src/frame/Ini.cpp", "#include <fstream>\n"},
      {"src/fiscal/Espera.cpp", "#include <unistd.h>\n"},
      {"src/sale/Venda.cpp", "#include <nlohmann/json.hpp>\n"},
  };
  for (const auto& [path, text] : wrong) EXPECT_NE(found(path, text), "") << path << ": " << text;
  EXPECT_EQ(found("src/base/A.h", "#pragma once\n\n#include \"sale/Venda.h\"\n"),
            "src/base/A.h:3: base does not see sale/Venda.h\n");
}

std::string Repeated(const std::string& line, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += line;
  return text;
}

TEST(Lengths, OfFilesAndLines) {
  const auto found = [](const std::string& text) {
    return Text(tidy::CheckLengths({"src/base/A.cpp", text}));
  };
  EXPECT_EQ(found(Repeated("int a;\n", 600)), "");
  EXPECT_EQ(found(Repeated("int a;\n", 601)), "src/base/A.cpp:601: the file is too long\n");
  EXPECT_EQ(found("//" + Repeated("ç", 98) + "\n"), "") << "characters, not bytes";
  EXPECT_EQ(found("\n//" + Repeated("ç", 99) + "\n"), "src/base/A.cpp:2: 101 columns\n");
}

TEST(Lengths, OfFunctions) {
  const auto longest = [](const std::string& text) {
    int length = 0;
    for (const tidy::Function& each : tidy::FunctionsOf(tidy::CodeOf(text))) {
      length = std::max(length, each.length);
    }
    return length;
  };
  const std::string body = Repeated("  Call(\"}\", '{', 10'000);  // }\n", 69);
  const std::string bodies[] = {
      "void F(int a) {\n" + body + "}\n",
      "namespace a {\nclass B : public C<D> {\n public:\n  B() : c_(1), d_{2} {\n" + body +
          "}\n};\n}\n",
      "template <class T>\nauto F(T a) -> int {\n  if (a) {\n" + Repeated("  b();\n", 67) +
          "  }\n}\n",
      "const auto f = [](int a) {\n" + body + "};\n",
      "void F() {\n  Run([&] {\n" + Repeated("    b();\n", 67) + "  });\n}\n",
      "TEST(A, B) {\n" + body + "}\n",
      "#define BRACE {\nstruct A {\n  int operator()() const noexcept {\n" + body + "}\n};\n",
  };
  for (const std::string& text : bodies) EXPECT_EQ(longest(text), 71) << text.substr(0, 80);
  EXPECT_NE(Text(tidy::CheckLengths({"src/base/A.cpp", bodies[0]})), "");

  const std::string rows = Repeated("      {1, 2, {3}},\n", 100);
  const std::string tables[] = {
      "constexpr int kTable[] = {\n" + rows + "};\n",
      "void F() {\n  const int table[] = {\n" + rows + "  };\n  Use(table);\n}\n",
      "F::F() {\n  Arrange({{9, 6},\n" + rows + "  });\n}\n",
      "void F() {\n  Use(Table{\n" + rows + "  });\n}\n",
      "void F() {\n  Use(R\"(\n" + Repeated("  a | b\n", 100) + ")\");\n}\n",
      "namespace a {\n" + Repeated("void F();\n", 100) + "}\n",
      "struct A {\n" + Repeated("  int a(int b = 1) { return b; }\n", 100) + "};\n",
  };
  for (const std::string& text : tables) EXPECT_LT(longest(text), 8) << text.substr(0, 80);
}

TEST(Calls, ThatGoByTheMachine) {
  const auto found = [](const char* path, const char* line) {
    return Text(tidy::CheckCalls({path, line}));
  };
  for (const char* line :
       {"double a = std::stod(text);", "x = atof(p);", "x = std::strtod(p, &e);", "x = stoi (s);",
        "std::setlocale(LC_ALL, \"\");", "out.imbue(a);", "sscanf(a, b);"}) {
    EXPECT_NE(found("src/base/A.cpp", line), "") << line;
    EXPECT_NE(found("src/desktop/A.cpp", line), "") << line << ": nowhere";
  }
  for (const char* line :
       {"auto a = std::getenv(name);", "auto t = std::chrono::system_clock::now();",
        "auto t = std::time(nullptr);", "time_t t = time(&u);", "localtime_r(&t, &p);"}) {
    EXPECT_NE(found("src/services/A.cpp", line), "") << line;
    EXPECT_EQ(found("src/desktop/A.cpp", line), "") << line;
    EXPECT_EQ(found("src/tools/roteiro/A.cpp", line), "") << line;
  }
  for (const char* line :
       {"// std::stod(text)", "Log(\"getenv(x)\");", "const int time(5);", "Custod(a);",
        "value.time(row);", "auto time = Time(0);", "steady_clock::now();"}) {
    EXPECT_EQ(found("src/services/A.cpp", line), "") << line;
  }
}

TEST(Words, ThatHaveNoPlaceInTheTree) {
  const auto found = [](const std::string& line) {
    return Text(tidy::CheckWords({"docs/a.md", line}));
  };
  const std::string wrong[] = {
      std::string("as the Specifi") + "cation says",
      std::string("see sp") + "ec.md",
      std::string("the sp") + "ec says",
      std::string("Part") + " 2.3, step 4",
      std::string("a especifica") + "ção",
      std::string("/work") + "/main/src",
      std::string("/home") + "/ana/caixa",
      std::string("/tmp/bash_") + "jobs.0",
  };
  for (const std::string& line : wrong) EXPECT_NE(found(line), "") << line;
  for (const char* line : {"part of 2.3 litres", "special", "com as especificações informadas",
                           "inspects", "the work/home balance", "Part two"}) {
    EXPECT_EQ(found(line), "") << line;
  }
}

TEST(Headers, BeginWithTheirGuardAndAreUsed) {
  EXPECT_EQ(Text(tidy::CheckGuard({"src/base/A.h", "#pragma once\n\nint a;\n"})), "");
  EXPECT_NE(Text(tidy::CheckGuard({"src/base/A.h", "// A.\n#pragma once\n"})), "");
  EXPECT_NE(Text(tidy::CheckGuard({"src/base/A.h", "#ifndef A_H\n"})), "");
  EXPECT_EQ(Text(tidy::CheckGuard({"src/base/A.cpp", "int a;\n"})), "");

  EXPECT_EQ(Text(tidy::CheckDeadHeaders({{"src/base/A.h", "#include \"base/A.h\"\n"},
                                         {"src/base/B.h", ""},
                                         {"src/base/A.cpp", "#include \"base/B.h\"\n"},
                                         {"src/base/C.h", ""},
                                         {"src/base/sub/C.cpp", "// #include \"base/C.h\"\n"}})),
            "src/base/A.h:1: nobody includes this header\n"
            "src/base/C.h:1: nobody includes this header\n");
}

}  // namespace
