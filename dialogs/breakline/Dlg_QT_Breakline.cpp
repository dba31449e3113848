#include "dialogs/breakline/Dlg_QT_Breakline.h"

#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvUtils.h"
#include "state/host/ModuleFolder.h"
#include "state/host/StarterFiles.h"
#include "state/pickers/DrawingPicker.h"
#include "state/pickers/PathMessages.h"
#include "state/widgets/DialogPicture.h"
#include "state/widgets/FullText.h"
#include "ui_Dlg_QT_Breakline.h"

#include <QFileInfo>
#include <QLayout>
#include <QToolButton>

namespace {

/// Only the presence of the extension in the name counts, so that backup copies ("plan.dwg.bak") are taken as well.
bool isNamedLikeDrawing(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.contains(QLatin1String(".dwg"), Qt::CaseInsensitive) ||
           name.contains(QLatin1String(".dxf"), Qt::CaseInsensitive);
}

} // namespace

Dlg_QT_Breakline::Dlg_QT_Breakline(QWidget *parent)
    : ToolDialog(parent, QStringLiteral("breakline")), m_ui(std::make_unique<Ui::Dlg_QT_Breakline>()),
      m_symbolFolder(ortakit::makeModuleFolder(QStringLiteral("BreakLine")))
{
    m_ui->setupUi(this);
    setUpButtons();
    m_file = std::make_unique<ElidedPathField>(m_ui->LbTitleblock);
    ortakit::putStarterFiles(m_symbolFolder, QStringLiteral("BreakLine"));
    // With a symbol that is there, whoever has chosen none yet can confirm at once.
    if (const QString usual = m_symbolFolder + QStringLiteral("/zigzag.dxf"); QFileInfo(usual).isFile())
        m_file->setFullPath(usual);
    new DialogPicture(m_ui->widget_2, QStringLiteral(":/images/breakline.png"));

    state().prependKeys({QStringLiteral("_dist_size"), QStringLiteral("_dist_offset")});

    connect(m_ui->name, &QLineEdit::textChanged, this, &Dlg_QT_Breakline::setName);
    connect(m_file.get(), &ElidedPathField::pathEntered, this, &Dlg_QT_Breakline::pressEnterforName);
    connect(m_ui->Bt_selectBlock, &QPushButton::clicked, this, &Dlg_QT_Breakline::selectBlock);
    connect(m_ui->SelectEntities, &QToolButton::clicked, this, &Dlg_QT_Breakline::CreateDesing);
    connect(m_ui->acceptButton, &QPushButton::clicked, this, &Dlg_QT_Breakline::CloseAccept);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

Dlg_QT_Breakline::~Dlg_QT_Breakline() = default;

ToolDialog::Reentry Dlg_QT_Breakline::reentry() const
{
    // Lisp has made a new symbol and put its path into the state.
    return state().lookup(QStringLiteral("!Action!")) == QLatin1String("CREATE") ? Reentry::WholeState
                                                                                 : Reentry::Nothing;
}

void Dlg_QT_Breakline::afterShow()
{
    m_ui->SelectEntities->setIcon(CKvUtils::icon(QStringLiteral(":/images/shared"), QStringLiteral("select_entities")));
    OdDbDatabase *database = ACTIVE_DOCUMENT() ? ACTIVE_DOCUMENT()->database() : nullptr;
    for (CKvQtUnitSpinBox *box : {m_ui->_dist_size, m_ui->_dist_offset}) {
        box->clearFocus();
        box->setDatabase(database);
    }
    m_ui->name->clear();
    setName({});
    refreshSymbol();
    // In the file field Enter only takes the path, so the focus goes where Enter does what the user came for.
    (hasSymbolFile() ? m_ui->acceptButton : m_ui->Bt_selectBlock)->setFocus();
}

void Dlg_QT_Breakline::setName(const QString &name)
{
    m_ui->SelectEntities->setEnabled(!name.isEmpty());
    m_ui->label_entities->setEnabled(!name.isEmpty());
}

void Dlg_QT_Breakline::pressEnterforName()
{
    refreshSymbol();
}

void Dlg_QT_Breakline::selectBlock()
{
    const QString path = m_file->fullPath();
    const QString chosen =
        ortakit::pickDrawing(this, {.filter = tr("Drawing files (*.dwg *.dxf)"),
                                    .start = path.isEmpty() ? m_symbolFolder + QStringLiteral("/noname") : path,
                                    .circularReferences = ortakit::CircularReferences::Allow});
    if (chosen.isEmpty())
        return;
    m_file->setFullPath(isNamedLikeDrawing(chosen) ? chosen : QString());
    refreshSymbol();
}

void Dlg_QT_Breakline::CloseAccept()
{
    // Enter in the file field also presses the default button; the path is taken first.
    if (m_ui->LbTitleblock->hasFocus())
        return;
    if (!hasSymbolFile()) {
        warn(tr("Cannot find the specified drawing file."));
        return;
    }
    acceptWith(QStringLiteral("OK"));
}

void Dlg_QT_Breakline::CreateDesing()
{
    const QString name = ortakit::wholeText(*m_ui->name);
    const QString path = m_symbolFolder + u'/' + name + QStringLiteral(".dwg");
    if (!ortakit::acceptsNewDrawingName(this, name, path)) {
        m_ui->name->setFocus();
        return;
    }
    acceptWith(QStringLiteral("CREATE"));
}

void Dlg_QT_Breakline::refreshSymbol()
{
    m_ui->PreviewBlock->setDrawing(m_file->fullPath());
    validateOk();
}

void Dlg_QT_Breakline::validateOk()
{
    m_ui->acceptButton->setEnabled(hasSymbolFile());
}

bool Dlg_QT_Breakline::hasSymbolFile() const
{
    return QFileInfo(m_file->fullPath()).isFile();
}
