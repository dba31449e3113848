#pragma once

#include "host/app/window/files/PrintSettings.h"

#include <QDialog>
#include <QTimer>

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace host::app {

/// How the layout that is shown is printed or written as a page, with the page as it will be. Of a page setup it asks
/// the same without the device.
class PrintDialog final : public QDialog
{
    Q_OBJECT

public:
    enum class Purpose
    {
        Print,
        SetUpPage
    };
    PrintDialog(kernel::Document &document, const QString &layout, Purpose purpose, QWidget *parent);

    /// As the widgets say it; the file is asked for elsewhere.
    PrintSettings settings() const;
    /// They become the layout's page setup.
    bool isKept() const;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fillChoices(bool isModel);
    void build(QFormLayout &form, Purpose purpose);
    /// Shows what is there; nothing else follows from it.
    void show(const PrintSettings &settings);
    void follow();
    void updatePreview();

    kernel::Document &m_document;
    const QString m_layout;
    QComboBox *m_device;
    QComboBox *m_paper;
    QComboBox *m_orientation;
    QComboBox *m_area;
    QLineEdit *m_low;
    QLineEdit *m_high;
    QComboBox *m_scale;
    QCheckBox *m_centred;
    QLineEdit *m_offset;
    QComboBox *m_styles;
    QCheckBox *m_lineweights;
    QSpinBox *m_copies;
    QCheckBox *m_keep;
    QLabel *m_preview;
    QTimer m_previewTimer; ///< once for what is changed together
};

} // namespace host::app
