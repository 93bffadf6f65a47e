// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/look/notice.h"

#include <QMessageBox>

#include "ui/look/dress.h"

namespace plasmos {

void ShowNotice(QWidget& window, const QString& text) {
    auto* box = new QMessageBox(QMessageBox::Warning, QStringLiteral("Plasmos"), text, QMessageBox::Ok, &window);
    box->setTextFormat(Qt::PlainText);
    Dress(*box);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->show();
}

}  // namespace plasmos
