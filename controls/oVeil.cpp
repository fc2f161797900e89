#include "controls/oVeil.h"

#include "controls/mdTheme.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

namespace {

class oShade final : public QWidget {
public:
    explicit oShade(QWidget *window)
        : QWidget(window)
    {
        setObjectName(QStringLiteral("oVeil"));
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(window->rect());
        window->installEventFilter(this);
        raise();
        show();
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return QWidget::eventFilter(watched, event);
    }
    void paintEvent(QPaintEvent *) override
    {
        QColor shade = Theme::Ink;
        shade.setAlphaF(0.16F);
        QPainter(this).fillRect(rect(), shade);
    }
};

} // namespace

oVeil::oVeil(QWidget *below)
    : m_shade(below && below->window()->isVisible() ? new oShade(below->window()) : nullptr)
{ }

oVeil::~oVeil()
{
    delete m_shade;
}
