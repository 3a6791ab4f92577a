// What a run left in its fault channel, shown the same way by every window
// that runs one (and in the same words as the command line): the warning of
// the battery's charge curve, then the fault that ended the run. A singular
// attitude step is not shown: the run went on through it.
#pragma once
#include "core/shell/erreur.h"

class QWidget;

namespace kestrel::gui {

class Dialogues;

void rapporte_run(Dialogues& dialogues, QWidget* parent, const Erreur& faute, const Alertes& alertes);

}  // namespace kestrel::gui
