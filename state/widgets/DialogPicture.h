#pragma once

#include <QIcon>
#include <QObject>

class QWidget;

/// An explanatory picture in a dialog: shown in the variant that suits the host's style, and changed with it.
///
/// A label gets it as its pixmap; any other widget is painted with it, fitted and centred, and greyed while disabled.
class DialogPicture : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `widget`, and stands in for its painting unless that is a label. `picture` is the light variant, such
    /// as ":/images/breakline.png"; the dark one is looked for as ":/images/svg_icons/dark/breakline.svg", or under
    /// `darkName` in place of "breakline"; the light one stays where there is none.
    DialogPicture(QWidget *widget, const QString &picture, const QString &darkName = {});

    /// Resource path of the variant that is shown.
    QString shownPicture() const { return m_shown; }

    /// Changes the variant with the palette, and when the widget is shown.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void choose();
    void paint();

    QWidget *m_widget;
    QString m_picture;
    QString m_darkPicture;
    QString m_shown;
    QIcon m_icon;
};
