#pragma once

#include "state/exchange/StateLines.h"

#include <QMap>
#include <QStringList>

class QDialog;
class QWidget;

/// Exchanges the values of a dialog's widgets with Lisp programs through a state file: UTF-8 text, one line a widget,
/// made of the widget's object name in lower case, "=" and its value, and one line "!action!=" with a word that tells
/// the Lisp program what to do next.
///
/// Every descendant widget with an object name takes part; ortakit::writtenValue() and ortakit::applyValue() know what
/// its class writes and takes. A dialog owns one of these for its whole life. Lines gather over all loads: a value
/// stays until a line with its key replaces it. Values are not escaped; one with "=" in it comes back cut there.
///
/// Nothing here reports a failure: a file that cannot be read or written leaves everything as it was.
class DialogState
{
public:
    /// `dialog` is not owned and must outlive this object. Makes the folder for favourites in the module folder and
    /// takes the context-help button off the dialog's title bar.
    explicit DialogState(QDialog *dialog);

    /// Merges the lines of the state file at `path` into the stored ones and remembers the path for save(). Sets no
    /// widget. A dialog that was moved keeps its place. An empty path leaves the remembered one.
    void load(const QString &path);

    /// Sets widgets from the stored lines, in the order of the widget search; those with no value stay as they are.
    /// A non-empty `nameFilter` restricts that to the widgets of this name (any case). `excluded` holds the names to
    /// leave alone, in lower case and each with "=" behind. From then on isLoaded().
    void apply(const QString &nameFilter = {}, const QStringList &excluded = {});
    /// Sets the widgets that the file of the last load() names, and leaves the others as the user left them.
    void applyLastFile();

    /// The value for `key`, empty when there is none: the text between the first two "=" of the first line that has
    /// `key` and "=" anywhere in it, in any case. See StateLines::lookup().
    QString lookup(const QString &key) const { return m_lines.lookup(key); }

    /// A list that a program gives as numbered values: those under `key`1, `key`2 and so on, as many as `key`length
    /// says, without the empty ones. Each is looked up as lookup() does.
    QStringList lookupList(const QString &key) const;

    /// What lookup() finds among the lines of the last load() alone: what this call's program said itself.
    QString lookupInLastFile(const QString &key) const { return m_lastFile.lookup(key); }

    /// The word for the Lisp program, written by every save() until another is set. A word with a value is set as
    /// "WORD=value".
    void setAction(const QString &word) { m_action = word; }
    QString action() const { return m_action; }

    /// From now on save() writes `value` to the state file for the widget called `name` (any case) instead of what the
    /// widget says, for a program that wants it in another form. Favourites keep what the widget says. The value of a
    /// name that no widget has stands behind those of the widgets.
    void setWrittenValue(const QString &name, const QString &value) { m_writtenValues.insert(name.toLower(), value); }

    /// From now on a favourite keeps `value` for the widget called `name` (any case) instead of what the widget says,
    /// as for the order of a table's rows. Picking the favourite gives it to the widget as any other value, and leaves
    /// it for lookup().
    void setFavouriteValue(const QString &name, const QString &value) { m_keptValues.insert(name.toLower(), value); }

    /// Writes the values of all widgets and the action word to the file of the last load(). The action line follows
    /// the first widget's; without a widget that has a value the file is empty. A crash or a full disk leaves the old
    /// file or the new one, where the folder allows to write beside it.
    ///
    /// With a name, keeps the values as the favourite of that name of the tool `favouriteGroup` instead: no action, no
    /// indexes of combo boxes.
    void save(const QString &favouriteName = {}, const QString &favouriteGroup = {}) const;

    /// Whether apply() has run.
    bool isLoaded() const { return m_loaded; }
    /// Path of the state file; empty before the first load().
    QString filePath() const { return m_path; }
    /// The stored lines in order, as they were read.
    QStringList lines() const { return m_lines.lines(); }
    /// Replaces the stored lines.
    void setLines(const QStringList &lines) { m_lines.assign(lines); }
    /// Puts bare keys (lower case, without "=") before the stored lines, so that the lines of a file with these keys
    /// take these places: a key that is also the end of another one must come before it to be found.
    void prependKeys(const QStringList &keys) { m_lines.prepend(keys); }
    /// Where favourites belong: LOGFILEPATH of the active document and "Ortakit/Favorites" right behind it.
    QString favouritesFolder() const { return m_favouritesFolder; }

private:
    QList<QWidget *> widgets() const;
    QString linesOf(const QWidget &widget) const;
    void saveFile() const;
    void saveFavourite(const QString &name, const QString &group) const;

    QDialog *m_dialog;
    StateLines m_lines;
    StateLines m_lastFile;
    QString m_path;
    QString m_favouritesFolder;
    QString m_action;
    QMap<QString, QString> m_writtenValues;
    QMap<QString, QString> m_keptValues;
    bool m_loaded = false;
};
