// Pictures of the complete simulation window, drawn once: ImageList_bat (the
// battery from full to empty) and the two states of img_pan_eclipse.
#pragma once
#include <QPixmap>
#include <vector>

namespace kestrel::gui {

// Six pictures: 0 full (five bars) down to 4 (one bar), 5 empty (red).
std::vector<QPixmap> ImageList_bat();

// The Sun in daylight, the Earth's shadow in eclipse.
QPixmap image_eclipse(bool eclipse);

}  // namespace kestrel::gui
