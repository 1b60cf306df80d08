#include "desktop/host/Module.h"

#include <utility>

#include "entry/clsCaixa.h"
#include "platform/Input.h"

namespace host {
namespace {

constexpr std::int16_t kUnlock = 2;

}  // namespace

Module::Module() = default;
Module::~Module() = default;

void Module::Open(base::RecordSetPtr user, std::string_view title,
                  platform::WindowHandle mainWindow, platform::WindowHandle container) {
  user_ = std::move(user);
  user_->MoveFirst();
  module_ = std::make_unique<entry::clsCaixa>();
  module_->DadosDoUsuario(user_.get());
  module_->NomeDaAplicacao(title);
  module_->CaixaOperar(mainWindow, container);
}

void Module::FreeCustomer() {
  if (module_ == nullptr) return;
  const std::int32_t customer = module_->CodigoDoClienteComOperacoesBloqueadas();
  if (customer == 0) return;
  // A fault is told like any other; the host goes all the same.
  platform::input::Run([&] {
    module_->ClasseBloquearOuDesbloquearClienteParaOperacoesNosCaixas(customer, kUnlock);
  });
}

}  // namespace host
