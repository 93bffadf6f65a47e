// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/dialogs/victim_panel.h"

#include <QEvent>
#include <QGridLayout>
#include <QPainter>

#include "model/game_state.h"
#include "ui/dialogs/choice_panels.h"
#include "ui/look/blob_shape.h"
#include "ui/look/palette.h"
#include "ui/look/plain_tip.h"

namespace plasmos {

namespace {

class SquarePicture : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QRadialGradient water(QRectF(rect()).center(), width() * 0.7);
        water.setColorAt(0, Shade(Tone::WaterLight));
        water.setColorAt(1, Shade(Tone::WaterMiddle));
        painter.setBrush(water);
        painter.setPen(QPen(Shade(Tone::WaterEdge), 1.2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 10, 10);
    }
};

}  // namespace

void FigureButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double radius = std::min(width(), height()) / 2.0 - 5;
    const int damage = state_.Amoeba[Figure.Amoeba][Figure.Clan].Damage;
    const QPointF centre = QRectF(rect()).center();
    if (hasFocus() || (underMouse() && Figure.Markable)) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Shade(Tone::OfferBright));
        painter.drawEllipse(centre, radius + 4, radius + 4);
    }
    DrawBlob(painter, BlobLook{Figure.Clan, Figure.Amoeba, damage, Figure.Marked, !Figure.Markable, 1}, centre, radius);
}

VictimPanel::VictimPanel(QWidget* parent, const GameState& state, VictimForm& form)
    : QuestionPanel(parent, state, form, ToQt(form.Text)),
      form_(form),
      vfamlab_(MakeText(this, "vfamlab", 14)),
      doneb_(MakeButton(QStringLiteral("doneb"), QStringLiteral("Done"), true)) {
    auto* picture = new SquarePicture(this);
    picture->setObjectName(QStringLiteral("vfpict"));
    auto* grid = new QGridLayout(picture);
    grid->setSpacing(2);
    const int across = form.Figures.size() > 14 ? 8 : 6;
    const int side = form.Figures.size() > 14 ? 38 : 52;
    for (std::size_t i = 0; i < form.Figures.size(); ++i) {
        auto* figure = new FigureButton(picture, state);
        figure->setObjectName(QStringLiteral("figure%1").arg(i));
        figure->setFixedSize(side, side);
        figure->setProperty("tag", ToQt(form.Figures[i].Tag()));
        RefuseRepeats(figure);
        const int index = static_cast<int>(i);
        connect(figure, &QAbstractButton::clicked, this,
                [this, index] { Handle([this, index] { form_.figure_Click(index); }); });
        grid->addWidget(figure, index / across, index % across);
        figures_.push_back(figure);
    }
    Body()->addWidget(picture);
    Body()->addWidget(vfamlab_);
    Body()->addWidget(Hint());
    Foot()->addWidget(doneb_, 0, Qt::AlignRight);
    connect(doneb_, &QPushButton::clicked, this, [this] { Handle([this] { form_.doneb_Click(); }); });
    std::vector<QWidget*> controls(figures_.begin(), figures_.end());
    controls.push_back(doneb_);
    OrderTabs(controls);
    VictimPanel::Reread();
}

void VictimPanel::Reread() {
    for (std::size_t i = 0; i < figures_.size() && i < form_.Figures.size(); ++i) {
        const VictimFigure& source = form_.Figures[i];
        figures_[i]->Figure = source;
        figures_[i]->setEnabled(source.Markable);
        figures_[i]->setToolTip(PlainTip(
            ToQt(Concat(State().Amoeba[source.Amoeba][source.Clan].Name, " of ", State().Players[source.Clan].Name))));
        figures_[i]->setAccessibleName(SpokenOf(source));
        figures_[i]->update();
    }
    SayClosing(form_.Mode == "HOLD" ? QStringLiteral("nobody rides along") : QStringLiteral("picks nobody"));
    vfamlab_->setText(ToQt(form_.vfamlab));
    doneb_->setEnabled(form_.donebEnabled);
}

QString VictimPanel::SpokenOf(const VictimFigure& figure) const {
    const Piece& piece = State().Amoeba[figure.Amoeba][figure.Clan];
    return QStringLiteral("%1 of %2, damage %3, %4")
        .arg(ToQt(piece.Name.View()), ToQt(State().Players[figure.Clan].Name.View()))
        .arg(piece.Damage)
        .arg(figure.Marked     ? QStringLiteral("picked")
             : figure.Markable ? QStringLiteral("can be picked")
                               : QStringLiteral("cannot be picked"));
}

bool VictimPanel::event(QEvent* event) {
    if (event->type() == QEvent::WindowDeactivate) {
        Handle([this] { form_.Form_Deactivate(); });
    }
    return QuestionPanel::event(event);
}

void VictimPanel::CloseAsked() {
    Handle([this] { form_.Form_Close(); });
}

QWidget* VictimPanel::FirstControl() {
    for (FigureButton* figure : figures_) {
        if (figure->Figure.Markable) {
            return figure;
        }
    }
    return doneb_;
}

}  // namespace plasmos
