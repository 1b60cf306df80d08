#include <csignal>

#include "services/Database.h"
#include "services/venda/VendasRegistradas.h"
#include "support/TemporaryFolder.h"

namespace services {
namespace {

/// A process that is killed while it registers: all of it stands afterwards, or nothing.
class KillTest : public OverDatabase {
 protected:
  void SetUp() override {
    OverDatabase::SetUp();
    Write(
        "INSERT INTO pre_vendas (numero, tipo_de_lancamento, codigo_do_cliente,"
        " data_de_lancamento, codigo_do_item, nome_do_item, quantidade, valor_unitario,"
        " valor_total, incluido_em, incluido_por) VALUES (41, 1, 5, '2026-11-20', 30, 'Banho',"
        " 10000, 400000, 400000, '2026-11-20 09:00:00', 'marina')");
  }

  /// A sale that writes to every table that a sale can write to.
  static Sale EverySide(bool withPreSale) {
    return {.lines = Grid({withPreSale ? PreSaleLine("40,00", 41) : ServiceLine("40,00"),
                           ProductLine("60,00")}),
            .tenders = Grid({Tender("1-Dinheiro", "60,00"),
                             Tender("6-A crédito (Fiado)", "50,00", "28/02/2027"),
                             Tender("7-Crédito do cliente", "0,01")}),
            .change = -Brl("5,01"),
            .creditKept = 5_brl};
  }

  /// Kills the process at its n-th step, from 0 on, until it survives; the count of steps.
  int KillAtEveryStep(const std::function<int()>& act, const std::function<void(bool)>& check) {
    constexpr int kMost = 200;
    for (int last = 0; last < kMost; ++last) {
      const int answer = EndOf(Start("LOJA", [&] {
        int step = 0;
        session().Observe([&](std::string_view) {
          if (step++ == last) raise(SIGKILL);
        });
        return act();
      }));
      EXPECT_LE(answer, 0);
      const bool survived = answer == 0;
      check(survived);
      ExpectBooksBalance();
      if (survived || HasFailure()) return last;
    }
    ADD_FAILURE() << "never came to its end";
    return kMost;
  }
};
OVER_BOTH_ENGINES(KillTest);

TEST_P(KillTest, AtEveryStepOfASale) {
  std::int64_t before = 0;
  const int steps = KillAtEveryStep(
      [] {
        const NewSale sale(EverySide(true));
        return int{sale->RegistrarPagamento()};
      },
      [&](bool survived) {
        const auto now = Count("vendas");
        EXPECT_TRUE(now == before || now == before + 1);
        if (survived) {
          EXPECT_EQ(before + 1, now);
        }
        // After the commit the sale stands though its process is dead: undo what lets it be
        // registered once only, and go on to the next step.
        if (now > before && !survived) {
          EXPECT_EQ(1, Count("pre_vendas WHERE numero_da_venda IS NOT NULL"));
          Write(
              "UPDATE vendas SET itens_de_pre_venda = 0;"
              "UPDATE pre_vendas SET numero_da_venda = NULL");
          before = now;
        }
        if (survived) before = now;
      });
  EXPECT_GE(steps, GetParam() == Engine::kSqlite ? 20 : 6);
}

TEST_P(KillTest, TheNextProgramTellsWhatBecameOfTheSaleAndDoesNotDoubleIt) {
  const support::TemporaryFolder folder;
  std::int64_t before = 0;
  int found = 0;
  int missed = 0;
  KillAtEveryStep(
      [&] {
        banco_->LembrarRegistros(folder.Path(), address_);
        const NewSale sale(EverySide(false));
        const int status = sale->RegistrarPagamento();
        banco_->CuidarDoPendente();
        return status;
      },
      [&](bool survived) {
        std::string told;
        banco_->AoAvisar([&](const std::string& sentence) { told += sentence; });
        banco_->LembrarRegistros(folder.Path(), "another database");
        EXPECT_FALSE(banco_->TemPendente());
        banco_->LembrarRegistros(folder.Path(), address_);
        const auto now = Count("vendas");
        const bool stands = now > before && !survived;
        EXPECT_FALSE(survived && banco_->TemPendente());
        EXPECT_TRUE(banco_->TemPendente() || !stands);
        missed += banco_->TemPendente() && !stands ? 1 : 0;
        for (int looks = 0; banco_->TemPendente() && looks < 100; ++looks) {
          banco_->CuidarDoPendente();
        }
        EXPECT_EQ(stands, told.find("ficou registrada com o número " +
                                    Read("SELECT max(numero) FROM vendas")) != std::string::npos &&
                              told.find("não ficou") == std::string::npos)
            << told;
        if (stands) {
          ++found;
          const NewSale again(EverySide(false));
          EXPECT_EQ(0, again->RegistrarPagamento());
          EXPECT_EQ(now, Count("vendas"));
        }
        before = now;
      });
  EXPECT_GT(found, 0);
  EXPECT_GT(missed, 0);
}

TEST_P(KillTest, AtEveryStepOfACancellationAndOfItsUndoing) {
  const NewSale sale(EverySide(true));
  ASSERT_EQ(0, sale->RegistrarPagamento());
  const SessionRecord marina("marina", true);
  for (const bool back : {false, true}) {
    const std::string from = back ? "C" : "F";
    const auto turn = [&](bool undoes) {
      const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
      service->NumeroDoCaixa(1);
      service->DadosDoUsuario(&marina);
      return int{undoes ? service->DesfazerCancelamento(1, "engano")
                        : service->CancelarVenda(1, "engano")};
    };
    KillAtEveryStep([&] { return turn(back); },
                    [&](bool survived) {
                      const bool turned = Read("SELECT situacao FROM vendas") != from;
                      EXPECT_TRUE(turned || !survived);
                      // It stands though its process is dead: once more from the start.
                      if (turned && !survived) {
                        EXPECT_EQ(0, turn(!back));
                      }
                    });
  }
}

TEST_P(KillTest, AtEveryStepOfAnOpening) {
  KillAtEveryStep(
      [] {
        const auto service = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
        service->NumeroDoCaixa(2);
        service->ValorDoLancamento("100,00");
        return int{service->RegistrarAbertura()};
      },
      [&](bool survived) {
        const bool isOpen = Read("SELECT aberto FROM caixas WHERE numero = 2") == "1";
        EXPECT_EQ(isOpen ? 1 : 0, Count("lancamentos_de_caixa"));
        if (survived) {
          EXPECT_TRUE(isOpen);
        }
        if (isOpen && !survived) {
          Write(
              "DELETE FROM lancamentos_de_caixa;"
              "UPDATE caixas SET aberto = 0, dinheiro = 0 WHERE numero = 2");
        }
      });
}

}  // namespace
}  // namespace services
