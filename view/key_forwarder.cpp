#include "view/key_forwarder.h"

#include <QFocusEvent>

#include <utility>

namespace zt::view {

KeyForwarder::KeyForwarder(QObject* watched, Actions actions)
    : QObject(watched), actions_(std::move(actions)) {
    watched->installEventFilter(this);
}

bool KeyForwarder::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
        case QEvent::KeyPress: {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) break;
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                if (actions_.key) actions_.key(13);
                return true;
            }
            if (key->key() == Qt::Key_Backspace) {
                if (actions_.key) actions_.key(8);
                return true;
            }
            const QString text = key->text();
            if (!text.isEmpty() && text.at(0).isPrint()) {
                if (actions_.type) actions_.type(text.toStdString());
                return true;
            }
            break;
        }
        case QEvent::FocusIn:
            if (actions_.focusIn) actions_.focusIn();
            break;
        case QEvent::FocusOut:
            if (actions_.focusOut) actions_.focusOut();
            break;
        default:
            break;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace zt::view
