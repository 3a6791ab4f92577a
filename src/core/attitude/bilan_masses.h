// Derived fields of the attitude record: total mass and inertia, and the
// centres of the six faces. Body axes, kg, m, kg m².
#pragma once

#include "core/etat/attitude_record.h"

namespace kestrel {

// Mt, I (symmetric) and cm_total from the central body, the external masses
// (mext at dext on each axis) and the dampers (md at lever ld), then
// faces_recalcul. External masses count once in Mt but twice in I, and the
// damper masses twice in Mt: that is how the model was built and is kept.
void bilan_masses(AttitudeRecord& a);

// face_c(k, j) = -cm(j), then ± dim(j)/2 on the face's own axis: a face centre
// lies on the axis through the body's geometric centre. m, body axes.
void faces_recalcul(AttitudeRecord& a);

}  // namespace kestrel
