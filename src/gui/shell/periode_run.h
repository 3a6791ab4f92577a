// Before a window starts a run: the project's period passes the same check as
// on the command line. Values typed in the windows are already checked as they
// are entered, so a refusal here names a file line (or the new project).
#pragma once

#include "core/etat/etat.h"
#include "shell/dialogues.h"

class QWidget;

namespace kestrel::gui {

// True when the run may start; otherwise the French refusal in a box.
bool periode_acceptee(QWidget* parent, Dialogues& dialogues, const Etat& etat);

}  // namespace kestrel::gui
