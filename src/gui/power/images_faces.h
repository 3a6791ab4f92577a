// img_pan4 / img_pan6: the lateral faces seen from +Z, numbered as the
// tables number the panels, face 1 facing +X.
#pragma once
#include <QPixmap>

namespace kestrel::gui {

QPixmap image_faces(int nb_faces);

}  // namespace kestrel::gui
