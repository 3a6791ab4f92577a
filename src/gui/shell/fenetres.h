// Where the windows of each subsystem join the main window: for every window
// that exists, a menu::branche() call gives its menu entries (and so their
// toolbar keys) a command. Entries of windows not built yet stay disabled.
#pragma once

namespace kestrel::gui {

class menu;

void branche_fenetres(menu& m);

}  // namespace kestrel::gui
