#pragma once

/// What the system tells of this process.
namespace vitrine::process {

/// Since the system started the process, program loading included; to a hundredth.
double SecondsSinceStart();
/// The most memory that was ever resident, in bytes.
long PeakMemory();

}  // namespace vitrine::process
