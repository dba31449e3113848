#pragma once

#include <QDialog>

namespace host::app::test {

/// A dialog of the kind that tools have: a name, a size, and buttons that ask back.
///     accept   refuses an empty name with a message box, asks before the name "old" is used again
///     browse   a file dialog for the name
///     again    a message box in front of a message box
///     more     a pop-up menu that sets the name
///     late     opens a message box only after the click is over
///     later    the same, after some more turns of the event loop
class SampleBox : public QDialog
{
    Q_OBJECT

public:
    explicit SampleBox(QWidget *parent = nullptr);
    QString name() const;

    /// How many are alive, for tests that look for dialogs left open.
    static int count() { return s_count; }
    ~SampleBox() override { --s_count; }
    /// Asks whether to close, always refusing when `isStubborn`.
    void reject() override;
    bool isStubborn = false;

private:
    void acceptChecked();
    void browse();
    void askTwice();
    void askLater(int turns);
    void showMenu();

    static inline int s_count = 0;
};

} // namespace host::app::test
