// The verbs, in the order of the help. A new one gets a row here, a section of the man page and stories.
#pragma once

#include <span>

#include "companion/verb.h"

namespace companion {

std::span<const Verb> Verbs();

int List(const Invocation& invocation, Output& output);
int Search(const Invocation& invocation, Output& output);
int Stats(const Invocation& invocation, Output& output);
int Check(const Invocation& invocation, Output& output);
int Sort(const Invocation& invocation, Output& output);
int History(const Invocation& invocation, Output& output);
int Backup(const Invocation& invocation, Output& output);
int Backups(const Invocation& invocation, Output& output);
int RestoreBackup(const Invocation& invocation, Output& output);
int Draft(const Invocation& invocation, Output& output);
int Export(const Invocation& invocation, Output& output);
int Import(const Invocation& invocation, Output& output);
int Restore(const Invocation& invocation, Output& output);
int Diff(const Invocation& invocation, Output& output);
int Merge(const Invocation& invocation, Output& output);

}  // namespace companion
