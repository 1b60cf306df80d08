#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "base/Clock.h"

/// How the cash desk meets the outside fiscal application: by files in one folder, the exchange
/// folder, which several workstations may share. For one export, all under one stem:
///
///   GRAVANDO-<stem>.tmp      while the export is being written; nobody else's business
///   CFE-ENVIO-<stem>.txt     the coupon's records; the fiscal application takes (removes) it
///   CFE-RETORNO-<stem>.txt   its answer, under the very stem of what it took
///   CFE-ADMIN-<stem>.txt     an instruction instead of records; it has no answer
///   respostas-atrasadas/     answers that came when nobody waited for them any more
///
/// The stem is COMPUTER-YYYYMMDDHHMMSS-PROCESS-MARK-NUMBER: the name of the workstation, its
/// letters in upper case, all but A to Z and 0 to 9 as "_" and two hexadecimal digits a byte; the
/// moment; the number of the process; eight hexadecimal digits that a process draws when it first
/// exports; the number of the export within the process. So no two exports share a stem, whatever
/// restarts or shares the folder, and a file tells whose it is.
///
/// A file is whole from the moment it bears its final name, and on the disk by then. It is plain
/// text with CR LF in Windows-1252: a byte a character, so that fields of fixed width have that
/// width in bytes too, and the code page in which fiscal applications read on a Brazilian Windows.
/// A character that Windows-1252 lacks fails the export; it is never replaced by another.
namespace services {

/// What can be wrong with an export; the value is the error number that the operator sees.
enum class FalhaNaExportacao : std::int32_t {
  kNoFolder = 3101,
  kNotAFolder = 3102,
  kNoPermission = 3103,
  kFull = 3104,
  kNameTooLong = 3105,
  kCharacter = 3106,
  kOther = 3199,
};

/// Tells the operator of an export that failed, with the words of NumeroDoErro, DescricaoDoErro and
/// LocalDoErro: the screens themselves are silent about it.
using RelatarFalha = std::function<void(std::int32_t numero, const std::string& descricao,
                                        const std::string& local)>;

/// Puts ZOVA_N_OSParaBD.clsOSExportarRegistros over the folder `pasta` into the registry. The
/// folder must exist when something is exported: one that is not there may be a network share that
/// is out of reach, and is a failure. `computador` is the workstation's name, and may be empty. The
/// clock outlives the registry's services; `relatar` may be empty.
void RegistrarExportacaoFiscal(const std::string& pasta, const base::Clock& relogio,
                               const std::string& computador, RelatarFalha relatar);

}  // namespace services
