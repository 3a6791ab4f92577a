// env_graph1: the twelve months of the environment page on one chart, the
// solar constant and the Earth's infrared in W/m² on the left axis (up to
// 1500), the albedo on the right axis (0 to 1).
#pragma once
#include <QChartView>
#include <array>

class QLineSeries;

namespace kestrel {
struct PowerRecord;
}

namespace kestrel::gui {

// Month names, January first, as the lists and the chart show them.
extern const std::array<const char*, 12> noms_mois;

class env_graph1 : public QChartView {
    Q_OBJECT
public:
    explicit env_graph1(QWidget* parent = nullptr);
    // Redraws the three curves from the record.
    void trace(const PowerRecord& p);

private:
    QLineSeries* albedo_;
    QLineSeries* ir_;
    QLineSeries* flux_;
};

}  // namespace kestrel::gui
