#include "forms/modal.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <algorithm>

namespace {

ModalDriver& Driver()
{
    static ModalDriver driver;
    return driver;
}

void PlaceOver(QDialog& form, QWidget* owner)
{
    if (!form.testAttribute(Qt::WA_Resized))
        form.adjustSize();
    QScreen* screen = owner ? owner->screen() : QGuiApplication::primaryScreen();
    const QRect area = screen ? screen->availableGeometry() : QRect();
    // An owner not shown yet (the main window while it asks for the game's
    // directory) has no place of its own: centre on the screen instead.
    const bool ownerShown = owner && owner->window()->isVisible();
    const QRect around = ownerShown ? owner->window()->frameGeometry() : area;
    // A window that has not been shown yet has no frame, and the title bar
    // and borders the system adds later would push its centre down and right.
    // Take them to be as wide as the owner's, as the owner already has its own.
    QSize outer = form.frameGeometry().size();
    if (owner && outer == form.size()) {
        const QWidget* top = owner->window();
        outer += top->frameGeometry().size() - top->size();
    }
    QRect place(QPoint(), outer);
    place.moveCenter(around.center());
    if (area.isValid()) {
        // Keep the title bar on the screen when the owner hangs off an edge.
        place.moveLeft(std::clamp(place.left(), area.left(), std::max(area.left(), area.right() - place.width())));
        place.moveTop(std::clamp(place.top(), area.top(), std::max(area.top(), area.bottom() - place.height())));
    }
    form.move(place.topLeft());
}

void CloseIfOpen(QDialog& form)
{
    if (!form.isVisible())
        return;
    form.reject();
    if (form.isVisible())
        form.QDialog::done(QDialog::Rejected);
}

}  // namespace

int ShowModal(QDialog& form, QWidget* owner)
{
    if (owner) {
        Qt::WindowFlags flags = form.windowFlags();
        if (!(flags & Qt::Window))
            flags |= Qt::Dialog;
        form.setParent(owner->window(), flags);
    }
    form.setWindowModality(Qt::ApplicationModal);
    PlaceOver(form, owner);

    if (Driver()) {
        // The driver runs inside the form's own event loop, so that anything it
        // opens from there (a message, another modal form) nests as for a person.
        QPointer<QDialog> open(&form);
        QTimer::singleShot(0, &form, [open] {
            const ModalDriver driver = Driver();
            if (!open || !driver)
                return;
            driver(*open);
            if (open)
                CloseIfOpen(*open);
        });
    }
    return form.exec();
}

void SetModalDriver(ModalDriver driver)
{
    Driver() = std::move(driver);
}
