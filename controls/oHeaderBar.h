#pragma once

#include <QWidget>

/// The title of a screen: a tile with the glyph of its family, the caption and a line of explanation, on paper with a
/// line below. As the header of the main window it shows the document instead, its folder paler than its name, and a
/// chip at the right. On a low screen everything is in one line.
class oHeaderBar : public QWidget {
    Q_OBJECT

public:
    explicit oHeaderBar(QWidget *parent = nullptr);

    void setCaption(const QString &caption);
    QString Caption() const { return m_caption; }
    void setSubCaption(const QString &caption);
    QString SubCaption() const { return m_subCaption; }
    /// The icon group: 12 is for the sections, whose glyph depends on the window's name.
    void setIconGroup(int group);
    int IconGroup() const { return m_iconGroup; }

    /// Whether the caption is the path of a document.
    void setDocument(bool document);
    /// A short word at the right; empty for none.
    void setChip(const QString &text);
    QString Chip() const { return m_chip; }

    /// The width at which the whole caption fits.
    int captionWidth() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QFont captionFont(bool semibold = true) const;
    int tileSide() const;
    void followScreen();
    void describe();
    int paintChip(QPainter &painter) const;
    void paintTitle(QPainter &painter, const QRect &room) const;
    void paintDocument(QPainter &painter, const QRect &room) const;

    QString m_caption;
    QString m_subCaption;
    QString m_chip;
    int m_iconGroup = 12;
    bool m_document = false;
    bool m_low = false;
};
