// SPDX-License-Identifier: GPL-3.0-or-later
//
// A turn that is filmed.

#include "ui/app/film.h"

#include <QDir>
#include <QImage>

#include "model/services.h"
#include "tests/ui/support/scene.h"

namespace plasmos::testing {

class FilmTest : public QObject {
    Q_OBJECT

private slots:
    void aTurnIsFilmed();
    void aFolderThatCannotBeMade();

private:
    static bool Film(const QString& folder) {
        const QTemporaryDir home;
        DataFolder files(home.path().toStdString());
        services = {};
        services.Files = &files;
        game.RequestedClans = 3;
        game.HasRequestedReplay = true;
        game.RequestedReplay = 5;
        Wish wish;
        wish.Folder = folder;
        wish.Size = QSize(700, 520);
        const bool taken = TakeFilm(wish);
        services = {};
        return taken;
    }
};

void FilmTest::aTurnIsFilmed() {
    const QTemporaryDir folder;
    QVERIFY(Film(folder.path()));
    const QDir film(folder.path());
    const QStringList frames = film.entryList({QStringLiteral("frame-*.png")}, QDir::Files, QDir::Name);
    QVERIFY2(frames.size() > 5, qPrintable(QString::number(frames.size())));
    QCOMPARE(frames.first(), QStringLiteral("frame-001.png"));
    const QImage first(film.filePath(frames.first()));
    QVERIFY(!first.isNull());
    QVERIFY2(first != QImage(film.filePath(frames.last())), "something moves");
}

void FilmTest::aFolderThatCannotBeMade() {
    QVERIFY(!Film(QStringLiteral("/proc/nowhere")));
}

WINDOW_TESTS(film_test, FilmTest)

}  // namespace plasmos::testing

#include "film_test.moc"
