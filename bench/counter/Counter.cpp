#include "counter/Counter.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <stdexcept>

#include "siblings/RegistrarTelas.h"

namespace bench {

namespace input = platform::input;

Counter::Nobody::Nobody() : descriptor_(open("/dev/null", O_RDONLY | O_CLOEXEC)) {
  if (descriptor_ < 0) throw std::runtime_error("no /dev/null");
}
Counter::Nobody::~Nobody() {
  close(descriptor_);
}

Counter::Counter(const Database& clinic)
    : timeline_(roteiro::Timeline::Mode::kVirtual, StandingClock().Now()),
      conversation_({nobody_.Descriptor(), answers_}, timeline_),
      desktop_(conversation_, timeline_,
               std::filesystem::path(clinic.target).parent_path().string()),
      services_(clinic) {
  siblings::RegistrarTelas();
  OpenRegister(1);
  session_.Set("NomeDeUsuario", "marina");
  session_.Set("Administrador", true);
  module_.DadosDoUsuario(&session_);
  module_.NomeDaAplicacao("Clínica");
  module_.CaixaOperar(roteiro::kMainWindow, roteiro::kContainer);
  screen_ = dynamic_cast<sale::frmCaixaOperar*>(roteiro::HeadlessDesktop::InFront());
  if (screen_ == nullptr) throw std::runtime_error("the counter is not there");
  Do(input::Pick(screen_->zvcmbCaixas, 0), "the register");
  Do(input::Focus(screen_->zvfCodigoDoCliente), "the customer's field");
  Do(input::Type(*screen_, "2"), "the customer's code");
  Do(input::Press(*screen_, platform::KeyStroke::Of(platform::Key::kEnter)), "the customer");
  Do(input::Click(screen_->optProduto), "the products");
}

Counter::~Counter() {
  desktop_.CloseWindows();
}

void Counter::Do(input::Outcome outcome, const char* what) {
  if (outcome == input::Outcome::kDone && !conversation_.IsClosing()) return;
  throw std::runtime_error(std::string("could not do: ") + what);
}

void Counter::Scan(const std::string& barcode) {
  if (!screen_->zvfCodigoDeBarrasDoProduto.HasFocus()) {
    Do(input::Focus(screen_->zvfCodigoDeBarrasDoProduto), "the barcode's field");
  }
  Do(input::Type(*screen_, barcode), "the barcode");
  Do(input::Press(*screen_, platform::KeyStroke::Of(platform::Key::kEnter)), "the search");
}

void Counter::Add() {
  Do(input::Click(screen_->zvcmdAdicionar), "the line");
}

void Counter::TakeBack() {
  screen_->msfgGrade.RemoveItem(Lines());
  screen_->CalcularValoresDosItensDaGrade();
}

}  // namespace bench
