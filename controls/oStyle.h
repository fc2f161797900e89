#pragma once

#include <QProxyStyle>

class QStyleOptionComboBox;
class QStyleOptionMenuItem;
class QStyleOptionSlider;
class QStyleOptionTab;

/// The look of all controls: measures, hints and drawing, based on a plain style of the toolkit. There are no style
/// sheets. Controls describe themselves by dynamic properties: "look" and "glyph" of a button (see oCustomButton),
/// "look" = "danger" of a menu's action, "invalid" (true) of a box with an invalid text.
class oStyle final : public QProxyStyle {
    Q_OBJECT

public:
    oStyle();

    void polish(QWidget *widget) override;
    using QProxyStyle::polish;

    int pixelMetric(
        PixelMetric metric, const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
        QStyleHintReturn *returnData = nullptr) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption *option, const QSize &size, const QWidget *widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl part,
        const QWidget *widget) const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
        const QWidget *widget = nullptr) const override;
    void drawItemText(QPainter *painter, const QRect &rectangle, int flags, const QPalette &palette, bool enabled,
        const QString &text, QPalette::ColorRole role = QPalette::NoRole) const override;

private:
    bool drawOurPrimitive(
        PrimitiveElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    bool drawOurControl(
        ControlElement element, const QStyleOption &option, QPainter &painter, const QWidget *widget) const;
    void drawMenuItem(const QStyleOptionMenuItem &option, QPainter *painter, const QWidget *widget) const;
    QSize sizeOfTab(const QStyleOptionTab &option, const QSize &size, const QWidget *widget) const;
    QRect scrollBarRect(const QStyleOptionSlider &option, SubControl part, const QWidget *widget) const;
    QRect listRect(const QStyleOptionComboBox &option, SubControl part, const QWidget *widget) const;
};
