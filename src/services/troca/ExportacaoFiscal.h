#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

/// How the cash desk meets the outside fiscal application: by files in one folder, the exchange
/// folder, which several workstations may share. For one export, all under one stem:
///
///   GRAVANDO-<stem>.tmp      while the export is being written; nobody else's business
///   CFE-ENVIO-<stem>.txt     the coupon's records; the fiscal application takes (removes) it
///   CFE-RETORNO-<stem>.txt   its answer, under the very stem of what it took
///   CFE-ADMIN-<stem>.txt     an instruction instead of records; it has no answer
///   respostas-atrasadas/     answers that came when nobody waited for them any more
///   arquivo/                 what the cash desk would else have deleted: answers that it has read,
///                            outbound files that it took back; for 30 days
///
/// The stem is COMPUTER-STATION-YYYYMMDDHHMMSS-PROCESS-MARK-NUMBER: the name of the workstation,
/// its letters in upper case, all but A to Z and 0 to 9 as "_" and two hexadecimal digits a byte;
/// its own mark of sixteen hexadecimal digits, kept on its disk, by which two computers of one name
/// never touch each other's files; the moment; the number of the process; eight hexadecimal digits
/// that a process draws when it first exports; the number of the export within the process. So no
/// two exports share a stem, whatever restarts or shares the folder, and a file tells whose it is.
/// Earlier versions had no mark of the workstation; what they left is put aside after a day.
///
/// A file is whole from the moment it bears its final name, and on the disk by then. It is plain
/// text with CR LF in Windows-1252: a byte a character, so that fields of fixed width have that
/// width in bytes too, and the code page in which fiscal applications read on a Brazilian Windows.
/// A character that Windows-1252 lacks fails the export; it is never replaced by another.
///
/// Files are readable for their owner alone, unless the folder lets others take files from it: for
/// the folder's group where that may write to the folder, to be read by everybody where everybody
/// may. So an application that runs as another user is let in by the folder's own rights.
///
/// Every coupon stands in the database before its file leaves (Cupons.h). When the same sale is
/// confirmed again, the export gives the names of the coupon that was asked for before, its answer
/// being put back in its place, rather than asking for a second one.
namespace services {

class Banco;

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
/// is out of reach, and is a failure. `relatar` may be empty.
void RegistrarExportacaoFiscal(const std::shared_ptr<Banco>& banco, const std::string& pasta,
                               RelatarFalha relatar);

/// At the start of a workstation: settles what its earlier exports left open, as far as files tell
/// it, and removes what has lain in the archive for more than 30 days. What cannot be reached is
/// left for later.
void RetomarCupons(const std::shared_ptr<Banco>& banco, const std::string& pasta);

/// What a host does with a file that the module deletes: one of the exchange folder is kept in its
/// archive. The answer is false when it is to be deleted after all.
std::function<bool(const std::string& arquivo)> ArquivoDaTroca(const Banco& banco,
                                                               const std::string& pasta);

}  // namespace services
