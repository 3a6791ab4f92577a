// The small charts of the power settings: series computed by the core drawn
// as lines, with a title, a legend and both axes titled with their units.
#pragma once
#include <QString>
#include <vector>

#include "core/power/courbes_conf.h"

class QChartView;

namespace kestrel::gui {

void trace_series(QChartView* vue, const std::vector<Serie>& series, const QString& titre,
                  const QString& titre_x, const QString& titre_y);

}  // namespace kestrel::gui
