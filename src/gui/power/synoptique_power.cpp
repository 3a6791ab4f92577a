#include "power/synoptique_power.h"

#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

namespace kestrel::gui {

namespace {

QString u(const std::string& s) { return QString::fromStdString(s); }

const QColor couleur_gs(40, 150, 60);        // generator power
const QColor couleur_charge(40, 100, 200);   // into the battery
const QColor couleur_decharge(220, 120, 20); // out of the battery
const QColor couleur_shunt(200, 40, 40);     // dissipated excess
const QColor couleur_repos(175, 175, 175);   // a path that carries nothing

}  // namespace

Fleche::Fleche(const QString& nom, Sens sens, QColor couleur, QWidget* parent)
    : QWidget(parent), sens_(sens), couleur_(couleur) {
    setObjectName(nom);
    setFixedSize(26, 26);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void Fleche::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.translate(width() / 2.0, height() / 2.0);
    const double angle[] = {0, 180, -90, 90};
    p.rotate(angle[static_cast<int>(sens_)]);
    // Pointing to +x: a shaft and a head, inside the 26 x 26 box.
    QPainterPath f;
    f.moveTo(12, 0);
    f.lineTo(0, -10);
    f.lineTo(0, -4);
    f.lineTo(-12, -4);
    f.lineTo(-12, 4);
    f.lineTo(0, 4);
    f.lineTo(0, 10);
    f.closeSubpath();
    p.setPen(QPen(couleur_.darker(140), 1.2));
    p.setBrush(couleur_);
    p.drawPath(f);
}

synoptique_power::synoptique_power(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("synoptique"));
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, QColor(250, 250, 246));
    setPalette(pal);

    valeur("lab_pgs", "Puissance fournie par les panneaux");
    valeur("lab_pgs_diss", "Dissipation au transfert GS/CU");
    valeur("lab_pava", "Puissance disponible");
    valeur("lab_puse", "Puissance utile");
    valeur("lab_disscu", "Dissipation charge utile");
    valeur("lab_exc", "Excès de puissance dissipée");
    valeur("lab_pbat", "Puissance fournie par la batterie");
    valeur("lab_pbat_diss", "Dissipation au transfert BAT/CU");
    valeur("lab_diss_charge", "Dissipation de recharge batterie");

    using S = Fleche::Sens;
    new Fleche(QStringLiteral("fl_gs"), S::droite, couleur_gs, this);
    new Fleche(QStringLiteral("fl_charge"), S::bas, couleur_charge, this);
    new Fleche(QStringLiteral("fl_decharge"), S::haut, couleur_decharge, this);
    new Fleche(QStringLiteral("fl_shunt"), S::haut, couleur_shunt, this);
}

QWidget* synoptique_power::valeur(const char* nom, const char* legende) {
    auto* boite = new QWidget(this);
    boite->setObjectName(QString::fromUtf8(nom) + QStringLiteral("_boite"));
    auto* l = new QVBoxLayout(boite);
    l->setContentsMargins(0, 0, 0, 0);
    l->setSpacing(0);
    auto* cap = new QLabel(QString::fromUtf8(legende), boite);
    cap->setObjectName(QString::fromUtf8(nom) + QStringLiteral("_legende"));
    QFont petit = cap->font();
    petit.setPointSizeF(petit.pointSizeF() * 0.9);
    cap->setFont(petit);
    cap->setStyleSheet(QStringLiteral("color: #505050"));
    auto* v = new QLabel(QStringLiteral("0.00 W"), boite);
    v->setObjectName(QString::fromUtf8(nom));
    QFont gras = v->font();
    gras.setBold(true);
    v->setFont(gras);
    l->addWidget(cap);
    l->addWidget(v);
    return boite;
}

QLabel* synoptique_power::lab(const char* nom) const { return findChild<QLabel*>(QString::fromUtf8(nom)); }

void synoptique_power::affiche(const AffichageSim& a) {
    dernier_ = a;
    lab("lab_pgs")->setText(u(a.pgs));
    lab("lab_pgs_diss")->setText(u(a.pgs_diss));
    lab("lab_pava")->setText(u(a.pava));
    lab("lab_puse")->setText(u(a.puse));
    lab("lab_disscu")->setText(u(a.disscu));
    lab("lab_exc")->setText(u(a.exc));
    lab("lab_pbat")->setText(u(a.pbat));
    lab("lab_pbat_diss")->setText(u(a.pbat_diss));
    lab("lab_diss_charge")->setText(u(a.diss_charge));
    findChild<QWidget*>(QStringLiteral("fl_gs"))->setVisible(a.fl_gs);
    findChild<QWidget*>(QStringLiteral("fl_charge"))->setVisible(a.fl_charge);
    findChild<QWidget*>(QStringLiteral("fl_decharge"))->setVisible(a.fl_decharge);
    findChild<QWidget*>(QStringLiteral("fl_shunt"))->setVisible(a.fl_shunt);
    place();  // the boxes follow the width of their new texts
    update();
}

synoptique_power::Plan synoptique_power::plan() const {
    const double w = width(), h = height();
    Plan p;
    // Three columns (panels | bus | payload), three rows (shunt | bus | battery).
    const double bw = std::min(0.22 * w, 170.0), bh = std::min(0.16 * h, 70.0);
    const double cx = w / 2, cy = h * 0.47;
    const double hcu = std::max(bh * 1.5, 88.0);  // title on two lines and lab_pava inside
    p.cu = QRectF(cx - bw / 2, cy - hcu / 2, bw, hcu);
    p.panneaux = QRectF(8, cy - bh / 2, bw * 0.8, bh);
    p.charge_utile = QRectF(w - 8 - bw * 0.8, cy - bh / 2, bw * 0.8, bh);
    p.shunt = QRectF(cx - bw * 0.35, 8, bw * 0.7, bh * 0.7);
    p.batterie = QRectF(cx - bw * 0.45, h - 8 - bh * 0.85, bw * 0.9, bh * 0.85);
    p.gs = QLineF(p.panneaux.right(), cy, p.cu.left(), cy);
    p.utile = QLineF(p.cu.right(), cy, p.charge_utile.left(), cy);
    p.vers_shunt = QLineF(cx, p.cu.top(), cx, p.shunt.bottom());
    const double dx = bw * 0.18;
    p.charge = QLineF(cx - dx, p.cu.bottom(), cx - dx, p.batterie.top());
    p.decharge = QLineF(cx + dx, p.batterie.top(), cx + dx, p.cu.bottom());
    return p;
}

void synoptique_power::resizeEvent(QResizeEvent*) { place(); }

void synoptique_power::place() {
    const Plan p = plan();
    const auto boite = [this](const char* nom) {
        auto* b = findChild<QWidget*>(QString::fromUtf8(nom) + QStringLiteral("_boite"));
        b->adjustSize();
        return b;
    };
    // Panels and payload: their figures over and under their blocks, the
    // paths between are too short for a caption.
    const auto pres_de = [&](const char* nom, const QRectF& r, bool dessus, bool a_droite) {
        QWidget* b = boite(nom);
        const double x = a_droite ? r.right() - b->width() : r.left();
        const double y = dessus ? r.top() - 6 - b->height() : r.bottom() + 6;
        b->move(static_cast<int>(std::max(4.0, x)), static_cast<int>(y));
    };
    pres_de("lab_pgs", p.panneaux, true, false);
    pres_de("lab_pgs_diss", p.panneaux, false, false);
    pres_de("lab_puse", p.charge_utile, true, true);
    pres_de("lab_disscu", p.charge_utile, false, true);
    // Inside the bus block, under its title (under the block it would sit on
    // the battery's paths).
    QWidget* pava = boite("lab_pava");
    pava->move(static_cast<int>(p.cu.center().x() - pava->width() / 2.0),
               static_cast<int>(p.cu.bottom() - 4 - pava->height()));
    QWidget* exc = boite("lab_exc");
    exc->move(static_cast<int>(p.vers_shunt.p1().x() + 22), static_cast<int>(p.vers_shunt.center().y() - exc->height() / 2.0));
    QWidget* ch = boite("lab_diss_charge");
    ch->move(static_cast<int>(p.charge.p1().x() - 22 - ch->width()), static_cast<int>(p.charge.center().y() - ch->height()));
    QWidget* pb = boite("lab_pbat");
    pb->move(static_cast<int>(p.decharge.p1().x() + 22), static_cast<int>(p.decharge.center().y() - pb->height()));
    QWidget* pbd = boite("lab_pbat_diss");
    pbd->move(pb->x(), pb->y() + pb->height() + 4);

    const auto sur = [this](const char* nom, QPointF c) {
        auto* f = findChild<QWidget*>(QString::fromUtf8(nom));
        f->move(static_cast<int>(c.x() - f->width() / 2.0), static_cast<int>(c.y() - f->height() / 2.0));
    };
    sur("fl_gs", p.gs.center());
    sur("fl_charge", p.charge.center());
    sur("fl_decharge", p.decharge.center());
    sur("fl_shunt", p.vers_shunt.center());
}

void synoptique_power::paintEvent(QPaintEvent*) {
    QPainter g(this);
    g.setRenderHint(QPainter::Antialiasing);
    const Plan p = plan();
    const auto chemin = [&](const QLineF& l, bool actif, const QColor& c) {
        g.setPen(QPen(actif ? c : couleur_repos, actif ? 4 : 2, actif ? Qt::SolidLine : Qt::DashLine, Qt::RoundCap));
        g.drawLine(l);
    };
    chemin(p.gs, dernier_.fl_gs, couleur_gs);
    chemin(p.utile, true, QColor(70, 70, 70));
    chemin(p.vers_shunt, dernier_.fl_shunt, couleur_shunt);
    chemin(p.charge, dernier_.fl_charge, couleur_charge);
    chemin(p.decharge, dernier_.fl_decharge, couleur_decharge);

    QFont titre = font();
    titre.setBold(true);
    g.setFont(titre);
    const auto bloc = [&](const QRectF& r, const QColor& fond, const QString& nom, Qt::Alignment a) {
        g.setPen(QPen(QColor(60, 60, 60), 1.5));
        g.setBrush(fond);
        g.drawRoundedRect(r, 6, 6);
        g.setPen(Qt::black);
        g.drawText(r.adjusted(4, 4, -4, -4), a | Qt::TextWordWrap, nom);
    };
    bloc(p.panneaux, QColor(200, 215, 245), QStringLiteral("Panneaux solaires"), Qt::AlignCenter);
    bloc(p.cu, QColor(235, 235, 220), QStringLiteral("Conditionnement (bus)"), Qt::AlignHCenter | Qt::AlignTop);
    bloc(p.charge_utile, QColor(225, 240, 220), QStringLiteral("Charge utile"), Qt::AlignCenter);
    bloc(p.shunt, QColor(245, 215, 210), QStringLiteral("Shunt"), Qt::AlignCenter);
    bloc(p.batterie, QColor(250, 235, 200), QStringLiteral("Batterie"), Qt::AlignCenter);
}

}  // namespace kestrel::gui
