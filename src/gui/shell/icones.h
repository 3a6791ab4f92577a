// Pictures of the toolbar keys: the desktop's icon theme where it has a fitting
// one, else a small drawing, so every key is recognisable with no theme at all.
#pragma once
#include <QIcon>
#include <QPixmap>
#include <QString>

namespace kestrel::gui {

// Icon of a toolbar key ("open", "bat", "masses", ...).
QIcon icone_cle(const QString& cle);

// The drawing alone, cote x cote pixels; a key with no drawing of its own gets
// a question mark, never an empty picture.
QPixmap dessin_cle(const QString& cle, int cote = 24);

}  // namespace kestrel::gui
