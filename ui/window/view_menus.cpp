// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/window/view_menus.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <utility>

#include "files/settings_store.h"
#include "files/text.h"
#include "model/services.h"
#include "ui/look/dress.h"
#include "ui/look/palette.h"
#include "ui/window/desktop_motion.h"

namespace plasmos {

namespace {

struct PaceRow {
    Pace What;
    const char* Name;
    const char* Caption;
    const char* Keys;
};

constexpr PaceRow Paces[] = {
    {Pace::Slow, "slow", "&Slow", "Ctrl+1"},
    {Pace::Normal, "normal", "&Normal", "Ctrl+2"},
    {Pace::Fast, "fast", "&Fast", "Ctrl+3"},
    {Pace::Instant, "instant", "&Instant", "Ctrl+4"},
};

struct ColourRow {
    std::optional<Scheme> What;
    const char* Caption;
};

constexpr ColourRow Colours[] = {
    {std::nullopt, "As the Deskto&p"},
    {Scheme::Light, "&Light"},
    {Scheme::Dark, "&Dark"},
    {Scheme::Contrast, "&High Contrast"},
};

QString Saved(const char* key, const char* fallback) {
    return services.Settings == nullptr ? QString::fromLatin1(fallback)
                                        : ToQt(services.Settings->Get("look", key, fallback));
}

/// Whether the desktop's own windows move.
bool DesktopMoves(const QWidget& window) {
    return window.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &window) > 0;
}

}  // namespace

ViewMenus::ViewMenus(QMainWindow& window, Deeds deeds)
    : window_(&window), deeds_(std::move(deeds)), colours_(new QActionGroup(this)), pace_(new QActionGroup(this)) {
    QMenu* view = window_->menuBar()->addMenu(QStringLiteral("&View"));
    view->setObjectName(QStringLiteral("view_men"));
    BuildColours(view);
    BuildPace(view);
    BuildHelp();
}

QAction* ViewMenus::AddItem(QMenu* menu, const char* name, const QString& caption, const QString& keys) {
    QAction* item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    item->setShortcut(QKeySequence(keys));
    return item;
}

void ViewMenus::BuildColours(QMenu* view) {
    QMenu* menu = view->addMenu(QStringLiteral("&Colours"));
    menu->menuAction()->setObjectName(QStringLiteral("colourmen"));
    for (const ColourRow& row : Colours) {
        const QString name = SchemeName(row.What);
        QAction* item = AddItem(menu, ("colour_" + name.toStdString()).c_str(), QString::fromLatin1(row.Caption), {});
        item->setCheckable(true);
        colours_->addAction(item);
        connect(item, &QAction::triggered, this, [this, row, name] {
            WantScheme(row.What);
            Save("colours", name);
        });
    }
}

void ViewMenus::BuildPace(QMenu* view) {
    QMenu* menu = view->addMenu(QStringLiteral("&Pace"));
    menu->menuAction()->setObjectName(QStringLiteral("pacemen"));
    for (const PaceRow& row : Paces) {
        QAction* item = AddItem(menu, Concat("pace_", row.Name).c_str(), QString::fromLatin1(row.Caption),
                                QString::fromLatin1(row.Keys));
        item->setCheckable(true);
        pace_->addAction(item);
        connect(item, &QAction::triggered, this, [this, row] {
            deeds_.SetPace(row.What);
            Save("pace", QString::fromLatin1(row.Name));
        });
    }
    menu->addSeparator();
    pausemen_ = AddItem(menu, "pausemen", QStringLiteral("&Pause"), QStringLiteral("F8"));
    pausemen_->setCheckable(true);
    connect(pausemen_, &QAction::toggled, this, [this](bool on) {
        stepmen_->setEnabled(on);
        deeds_.Hold(on);
    });
    stepmen_ = AddItem(menu, "stepmen", QStringLiteral("&One Step"), QStringLiteral("F9"));
    connect(stepmen_, &QAction::triggered, this, [this] { deeds_.Step(); });
    motionmen_ = AddItem(view, "motionmen", QStringLiteral("&Motion"), {});
    motionmen_->setCheckable(true);
    connect(motionmen_, &QAction::triggered, this, [this](bool on) {
        motionIsChosen_ = true;
        deeds_.SetMotion(on);
        Save("motion", on ? QStringLiteral("1") : QStringLiteral("0"));
    });
}

void ViewMenus::BuildHelp() {
    QMenu* help = window_->menuBar()->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("help_men"));
    QAction* book = AddItem(help, "bookmen", QStringLiteral("Hand&book"), QStringLiteral("F1"));
    connect(book, &QAction::triggered, this, [this] { deeds_.ShowHandbook(); });
    guidemen_ = AddItem(help, "guidemen", QStringLiteral("Show me &How"), {});
    connect(guidemen_, &QAction::triggered, this, [this] { deeds_.Guide(); });
    QAction* signs = AddItem(help, "signsmen", QStringLiteral("&Signs on the Board"), QStringLiteral("F2"));
    connect(signs, &QAction::triggered, this, [this] { deeds_.ShowSigns(); });
    QAction* keys = AddItem(help, "keysmen", QStringLiteral("&Keys"), QStringLiteral("F3"));
    connect(keys, &QAction::triggered, this, [this] { deeds_.ShowKeys(); });
}

void ViewMenus::Load() {
    const auto scheme = SchemeNamed(Saved("colours", "desktop"));
    WantScheme(scheme);
    for (QAction* item : colours_->actions()) {
        item->setChecked(item->objectName() == QStringLiteral("colour_") + SchemeName(scheme));
    }
    const QString pace = Saved("pace", "normal");
    pace_->actions()[1]->setChecked(true);
    deeds_.SetPace(Pace::Normal);
    for (const PaceRow& row : Paces) {
        if (pace == QLatin1String(row.Name)) {
            window_->findChild<QAction*>(ToQt(Concat("pace_", row.Name)))->setChecked(true);
            deeds_.SetPace(row.What);
        }
    }
    LoadMotion();
    SetPlaying(false);
}

void ViewMenus::LoadMotion() {
    const QString saved = Saved("motion", "");
    motionIsChosen_ = saved == QLatin1String("0") || saved == QLatin1String("1");
    SetMotion(motionIsChosen_ ? saved == QLatin1String("1") : DesktopMoves(*window_));
    new DesktopMotion(this, [this](bool moves) {
        if (!motionIsChosen_) {
            SetMotion(moves);
        }
    });
}

void ViewMenus::SetMotion(bool on) {
    motionmen_->setChecked(on);
    deeds_.SetMotion(on);
}

void ViewMenus::SetFree(bool free) {
    guidemen_->setEnabled(free);
}

void ViewMenus::SetPlaying(bool playing) {
    pausemen_->setChecked(false);
    pausemen_->setEnabled(playing);
    stepmen_->setEnabled(false);
}

void ViewMenus::Save(const char* key, const QString& value) {
    if (services.Settings != nullptr && !services.Settings->Save("look", key, value.toStdString())) {
        deeds_.Tell(QStringLiteral("The setting could not be saved in\n%1").arg(ToQt(services.Settings->Where())));
    }
}

}  // namespace plasmos
