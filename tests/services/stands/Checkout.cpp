#include "services/stands/Checkout.h"

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "fiscal/TrocaDeArquivosCFeSAT.h"
#include "frame/Valores.h"
#include "frame/servicos/ZOVA_N_Administrativo.clsAdministrativo.h"
#include "frame/servicos/ZOVA_N_Caixas.clsCaixas.h"
#include "services/troca/ExportacaoFiscal.h"

namespace services {
namespace {

constexpr double kHaste = 10;

template <std::size_t n>
void Append(char (&text)[n], const std::string& sentence) {
  const std::size_t length = std::char_traits<char>::length(text);
  const std::size_t room = n - 1 - length;
  std::copy_n(sentence.begin(), std::min(sentence.size(), room), text + length);
}

}  // namespace

void Press::Say(const std::string& sentence) {
  Append(words, sentence + "\n");
}

void Press::SayAfter(const std::string& sentence) {
  Append(after, sentence + "\n");
}

DesktopOfCheckout::DesktopOfCheckout(std::string folder, Press& press)
    : folder_(std::move(folder)), press_(press) {
  Install(this);
}

platform::Answer DesktopOfCheckout::Ask(const platform::MessageBox& box) {
  press_.Say(box.text);
  constexpr int kPatience = 30;
  const bool waits = box.buttons == platform::Buttons::kYesNo && questions_++ < kPatience;
  return waits ? platform::Answer::kYes : box.preset;
}

void DesktopOfCheckout::ProcessEvents() {
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void DesktopOfCheckout::Freeze(double seconds) {
  std::this_thread::sleep_for(std::chrono::duration<double>(seconds / kHaste / kHaste));
}

double DesktopOfCheckout::Elapsed() const {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double>(now).count() * kHaste;
}

Checkout::Checkout(std::shared_ptr<Banco> banco, const std::string& folder, Press& press,
                   std::function<void()> step)
    : banco_(std::move(banco)), press_(press), desktop_(folder, press) {
  RegistrarExportacaoFiscal(
      banco_, folder, [this](std::int32_t, const std::string& description, const std::string&) {
        press_.Say(description);
      });
  banco_->AoAvisar([this](const std::string& sentence) { press_.Say(sentence); });
  RetomarCupons(banco_, folder);
  platform::files::InsteadOfDeleting(
      [keep = ArquivoDaTroca(*banco_, folder), step = std::move(step)](const std::string& file) {
        step();
        const bool kept = keep(file);
        step();
        return kept;
      });
  frame::valores().DadosDoUsuario = &seller_;
}

Checkout::~Checkout() {
  platform::files::InsteadOfDeleting({});
  frame::valores().DadosDoUsuario = nullptr;
}

bool Checkout::TakeOrFree(bool takes) {
  const auto service = servicos::CriarServico<servicos::ZOVA_N_Administrativo::clsAdministrativo>();
  service->DadosDoUsuario(&seller_);
  double code = 5;
  const auto status =
      takes ? service->BloquearCliente(1, code, 2) : service->DesbloquearCliente(1, code, 2);
  if (status != 0) press_.SayAfter(service->DescricaoDoErro());
  return status == 0;
}

bool Checkout::Begin() {
  return TakeOrFree(true);
}

bool Checkout::Export() {
  frame::valores().ChaveSAT.clear();
  return fiscal::TrocaDeArquivosCFeSAT().ExportarDadosCFeSATParaArquivo(
      "|00|65||1|0|||N||||||||||||||1|N|1.00.00|\r\n",
      "|05|001|000012|00000001,000|00000100,000|000000000,00|000000100,00|\r\n",
      "|10|01|01|000000100,00||||||||\r\n");
}

void Checkout::Confirm() {
  press_ = Press();
  if (!Export()) {
    press_.outcome = Press::kNoCoupon;
    return;
  }
  const NewSale sale({.key = frame::valores().ChaveSAT});
  const std::int16_t status = sale->RegistrarPagamento();
  press_.Say(sale->DescricaoDoErro() + sale->DescricaoDaFalha());
  press_.number = sale->NumeroDaVenda();
  press_.outcome = status;
  if (status != Press::kRegistered) return;
  const auto receipt = servicos::CriarServico<servicos::ZOVA_N_Caixa::clsCaixa>();
  if (receipt->SelecionarItensDeVenda(
          " WHERE ItensDeVendas.NumeroDaVenda = " + std::to_string(press_.number) + ' ') != 0) {
    press_.SayAfter(receipt->DescricaoDoErro());
  }
  const auto registers = servicos::CriarServico<servicos::ZOVA_N_Caixas::clsCaixas>();
  if (registers->SelecionarParaComboBox() != 0) press_.SayAfter(registers->DescricaoDoErro());
  TakeOrFree(false);
}

bool Checkout::Rest() {
  banco_->CuidarDoPendente();
  return !banco_->TemPendente();
}

}  // namespace services
