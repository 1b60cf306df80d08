#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "clinic/Goods.h"
#include "clinic/Opened.h"
#include "clinic/People.h"
#include "desktop/Application.h"
#include "desktop/Cases.h"
#include "desktop/DesktopQt.h"
#include "desktop/views/MSFlexGrid.h"
#include "frame/PainelDeMensagem.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_Caixa.clsCaixa.h"
#include "lookup/frmPesquisaDeClientes.h"
#include "lookup/frmPesquisaDeProdutos.h"
#include "platform/Input.h"
#include "register/frmCaixaComprovanteDeVenda.h"
#include "siblings/RegistrarTelas.h"
#include "support/Bench.h"

namespace bench {
namespace {

constexpr std::int32_t kHits = 5'000;
/// One of those that the operator sees first.
constexpr std::int32_t kSeenRow = 5;

/// What a search for customers found, in the fields that the counter takes over, in no order.
base::RecordSetPtr Customers() {
  auto rows = std::make_shared<base::RecordSet>(
      std::vector<std::string>{"CodigoDoCliente",
                               "ApelidoOuNomeFantasia",
                               "NomeOuRazaoSocial",
                               "Situacao",
                               "EnderecoCompleto",
                               "TiposECanaisDeComunicacao",
                               "Credito",
                               "DescontoUnico",
                               "PercentualUnicoDeDescontos",
                               "PercentualDeDescontoEmClinicos",
                               "PercentualDeDescontoEmCirurgiaSimples",
                               "PercentualDeDescontoEmCirurgiaMedia",
                               "PercentualDeDescontoEmCirurgiaComplexa",
                               "PercentualDeDescontoEmBanhosTosasEEsteticas",
                               "PercentualDeDescontoEmHospedagens",
                               "PercentualDeDescontoEmAdestramentos",
                               "PercentualDeDescontoEmOutros",
                               "VIP",
                               "CategoriaDaCurvaABC",
                               "CPFCNPJ",
                               "CodigoIBGEDoMunicipio"});
  People people;
  for (std::int32_t i = 0; i < kHits; ++i) {
    const People::Person person = people.Next();
    // A prime that shares no factor with the count: each code once.
    const std::int32_t code = (i + 17) * 4'219 % kHits + 1;
    const base::Currency percentage =
        base::Currency::FromTenThousandths(std::int64_t{i} % 10 * 12'500);
    std::vector<base::Value> row{code,
                                 person.nickname,
                                 person.name,
                                 1,
                                 "Rua das Palmeiras, " + std::to_string(code) + " - Centro",
                                 "Celular (11) 90000-" + std::to_string(10'000 + i).substr(1),
                                 base::Currency::FromTenThousandths(std::int64_t{i} % 7 * 99'900),
                                 "Não"};
    row.insert(row.end(), 9, percentage);
    for (const char* text : {"Não", "B", "999.000.124-37", "3550308"}) row.emplace_back(text);
    rows->Append(std::move(row));
  }
  return rows;
}

base::RecordSetPtr Products() {
  auto rows = std::make_shared<base::RecordSet>(std::vector<std::string>{
      "CodigoDeBarras", "CodigoInterno", "NCM", "Nome", "NomeDoGrupo", "NomeDoSubgrupo",
      "PercentualDeComissao", "UnidadeDeCompra", "UnidadeDeVenda", "ValorDeCusto", "ValorDeVenda"});
  for (std::int32_t i = 0; i < kHits; ++i) {
    const std::int32_t place = i * 4'219 % kHits;
    rows->Append({BarcodeAt(place), place + 1, "23091000", ProductNameAt(place), "Rações", "Cães",
                  base::Currency::FromTenThousandths(25'000), "UN", "UN",
                  base::Currency::FromTenThousandths(std::int64_t{7'100} * place),
                  base::Currency::FromTenThousandths(std::int64_t{11'900} * place)});
  }
  return rows;
}

/// Calls `painted` once a widget has been painted and nothing is left to do.
class Painted final : public QObject {
 public:
  Painted(std::function<bool(const QObject*)> isIt, std::function<void()> painted)
      : isIt_(std::move(isIt)), painted_(std::move(painted)) {
    qApp->installEventFilter(this);
  }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && isIt_(watched)) {
      qApp->removeEventFilter(this);
      QTimer::singleShot(0, this, painted_);
    }
    return false;
  }

  std::function<bool(const QObject*)> isIt_;
  std::function<void()> painted_;
};

/// A host's window with the real renderer, and the services that a list needs.
class Window {
 public:
  Window() : services_(NewClinic(services::Engine::kSqlite, "listas")) {
    platform::Desktop::Install(&desktop_);
    siblings::RegistrarTelas();
    host_.resize(1366, 768);
    host_.show();
    frame::valores().HandleDaJanelaPrincipal = desktop_.Register(host_);
    QCoreApplication::processEvents();
  }
  ~Window() {
    frame::valores() = {};
    platform::Desktop::Install(nullptr);
  }
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  /// Opens a list over the darkened host, to the moment when the operator sees the rows; then
  /// closes it. `show` fills it, shows it and returns when it is closed.
  template <class List, class Show>
  double SecondsToOpen(Show show) {
    double seconds = 0;
    bool seen = false;
    std::unique_ptr<List> list;
    const auto start = std::chrono::steady_clock::now();
    const Painted painted(
        [&](const QObject* widget) { return list && IsGrid(widget, list->msfgGrade); },
        [&] {
          seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
          seen = !Grid(list->msfgGrade).CellBox(kSeenRow, 1).isEmpty();
          platform::input::Close(*list);
        });
    {
      const frame::FundoEscuro dark;
      list = std::make_unique<List>();
      show(*list);
    }
    if (!seen) throw std::runtime_error("the list was not seen");
    list->Unload();
    list.reset();
    Settle();
    return seconds;
  }

  template <class List>
  static void Fill(List& list, const base::RecordSetPtr& found) {
    std::int16_t failed = 0;
    list.ConfigurarGrade(failed);
    if (failed == 0) list.PreencherGrade(found, failed);
    if (failed != 0 || list.msfgGrade.Rows() != kHits + 1) {
      throw std::runtime_error("the list does not hold what was found");
    }
  }

  /// A click on a header, until the rows are seen in their new order.
  double SecondsToSort(lookup::frmPesquisa& list, std::int32_t column) {
    const std::string first = list.msfgGrade.TextMatrix(1, column);
    const double seconds = SecondsOf([&] {
      platform::input::ClickCell(list.msfgGrade, 0, column, platform::MouseButton::kLeft, false);
      Grid(list.msfgGrade).repaint();
    });
    if (list.msfgGrade.TextMatrix(1, column) == first) {
      throw std::runtime_error("the list was not sorted");
    }
    return seconds;
  }

  static void Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

 private:
  desktop::MSFlexGridView& Grid(const platform::MSFlexGrid& grid) const {
    return static_cast<desktop::MSFlexGridView&>(*desktop_.ViewOf(grid));
  }
  bool IsGrid(const QObject* widget, const platform::MSFlexGrid& grid) const {
    return widget->isWidgetType() && widget == desktop_.ViewOf(grid);
  }

  Opened services_;
  desktop::DesktopQt desktop_{"."};
  QWidget host_;
};

/// Sorting by `column` a list that was sorted by `other` before.
void Sort(benchmark::State& state, std::int32_t column, std::int32_t other) {
  NeedApplication();
  Window window;
  lookup::frmPesquisaDeClientes list;
  Window::Fill(list, Customers());
  list.Show();
  Window::Settle();
  Alone(state, [&] {
    window.SecondsToSort(list, other);
    return window.SecondsToSort(list, column);
  });
  list.Unload();
}

template <class List>
void Open(benchmark::State& state, const base::RecordSetPtr& found) {
  NeedApplication();
  Window window;
  // As the counter does with what a search has found.
  Alone(state, [&] {
    return window.SecondsToOpen<List>([&](List& list) {
      Window::Fill(list, found);
      list.ShowModal();
    });
  });
}

/// A register that has sold 2,000 times today.
class BusyRegister final : public servicos::ZOVA_N_Caixa::clsCaixa {
 public:
  void DadosDoUsuario(const base::Record*) override {}
  std::int16_t PesquisarVendaDoDia(std::string_view, std::int32_t&, std::int32_t,
                                   std::int16_t) override {
    return servicos::kSucesso;
  }
  base::RecordSetPtr ResultadoDaSelecaoEmRecordSet() override { return Sales(); }

 private:
  static base::RecordSetPtr Sales() {
    constexpr int kFields = 14, kSales = 2'000;
    static const auto sales = [] {
      const auto rows =
          std::make_shared<base::RecordSet>(std::vector<std::string>(kFields, "campo"));
      People people;
      for (int i = kSales; i > 0; --i) {
        const People::Person person = people.Next();
        rows->Append({std::to_string(i), "22/11/2026", "14:30:00", "marina", person.nickname,
                      "77,70", "0,00", "77,70", "", "77,70", "2", person.name,
                      "Rua das Acácias, 12 - Vale Claro/SP", "Celular (11) 90000-0000"});
      }
      return rows;
    }();
    return sales;
  }
};

void OpenSales(benchmark::State& state) {
  NeedApplication();
  Window window;
  servicos::Registrar(BusyRegister::kIdentificador,
                      [] { return std::make_unique<BusyRegister>(); });
  using List = registers::frmCaixaComprovanteDeVenda;
  Alone(state, [&] {
    return window.SecondsToOpen<List>([](List& list) { list.MontarExibirFormulario(); });
  });
}

}  // namespace

void AddPickLists() {
  constexpr int kRounds = 100;
  constexpr std::int32_t kCode = 1, kName = 3;
  Add("picklist/open_customers", kRounds,
      [](benchmark::State& state) { Open<lookup::frmPesquisaDeClientes>(state, Customers()); });
  Add("picklist/open_products", kRounds,
      [](benchmark::State& state) { Open<lookup::frmPesquisaDeProdutos>(state, Products()); });
  Add("picklist/open_sales_of_day", kRounds, OpenSales);
  Add("picklist/sort_by_name", kRounds, [](benchmark::State& state) { Sort(state, kName, kCode); });
  Add("picklist/sort_by_code", kRounds, [](benchmark::State& state) { Sort(state, kCode, kName); });
}

}  // namespace bench
