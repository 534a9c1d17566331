// The dialog side of Setting; what it stores is in settingstore.cpp.
#include "settings/setting.h"

#include "ui_setting.h"
#include "util/desktop/folderchooser.h"
#include "util/files/diskanswer.h"
#include "util/webcamutil.h"

#include <QDir>
#include <QShowEvent>

Setting::Setting(QWidget *parent) : QDialog(parent), m_ui(std::make_unique<Ui_Setting>())
{
    setAutoFillBackground(true);
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::WindowStaysOnTopHint);
    hide();
    m_ui->setupUi(this);
    m_defaultDirectory = WebcamUtil::getDocumentPath();
    setDefaultValue();
    setCaptions();
    setCmbValue();
    readFile();
    setParam();
    connectWidgets();
    adjustSize();
    setFixedSize(size());
}

Setting::~Setting() = default;

void Setting::setCaptions()
{
    m_ui->chbAutoShooting->setText(tr("Self Timer"));
    m_ui->lblShootingInterval->setText(tr("second"));
    m_ui->lblContinuousShooting->setText(tr("Continuous Capture"));
    m_ui->lblShootingCount->setText(tr("Shots"));
    m_ui->chbPhotoPreview->setText(tr("Confirm captured image"));
    m_ui->lblResolution->setText(tr("Resolution"));
    m_ui->label->setText(tr("Save Directry:"));
    m_ui->rbtnDefault->setText(tr("Use default location"));
    m_ui->rbtnCustom->setText(tr("Use other location"));
    m_ui->btnOk->setText(tr("OK"));
    m_ui->btnCancel->setText(tr("Cancel"));
    setAccessibleNames();
}

void Setting::setAccessibleNames()
{
    m_ui->cmbAutoShooting->setAccessibleName(m_ui->chbAutoShooting->text());
    m_ui->cmbContinuousShooting->setAccessibleName(m_ui->lblContinuousShooting->text());
    m_ui->cmbResolution->setAccessibleName(m_ui->lblResolution->text());
    m_ui->txbSaveDirectory->setAccessibleName(m_ui->label->text());
    m_ui->tolSaveDirectory->setAccessibleName(tr("SaveDirectory"));
    m_ui->tolSaveDirectory->setToolTip(m_ui->tolSaveDirectory->accessibleName());
}

void Setting::connectWidgets()
{
    connect(m_ui->btnOk, &QPushButton::clicked, this, &Setting::OnOk);
    connect(m_ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->tolSaveDirectory, &QToolButton::clicked, this, &Setting::setSaveDirectory);
    connect(m_ui->rbtnDefault, &QRadioButton::clicked, this, &Setting::onDefault);
    connect(m_ui->rbtnCustom, &QRadioButton::clicked, this, &Setting::onCustom);
    connect(m_ui->chbAutoShooting, &QCheckBox::clicked, this, &Setting::AutoCheck);
}

void Setting::showEvent(QShowEvent *event)
{
    if (event->spontaneous()) { // back from its icon: what was entered stays
        QDialog::showEvent(event);
        return;
    }
    readFile();
    setParam();
    QDialog::showEvent(event);
    adjustPosition(parentWidget());
}

void Setting::OnOk()
{
    if (!m_ui->rbtnCustom->isChecked()) {
        accept();
        return;
    }
    const QString directory = m_ui->txbSaveDirectory->text();
    const auto exists = [directory] { return QDir(directory).exists(); };
    if (directory.isEmpty())
        WebcamUtil::WarningMessage(tr("Please specify the save location."), this);
    else if (askDisk("Looking for a folder", directory, false, exists) &&
             WebcamUtil::hasWriteAccess(directory))
        accept();
    else
        WebcamUtil::WarningMessage(tr("Invalid PATH is specified."), this);
}

void Setting::setSaveDirectory()
{
    const QString shown = m_ui->txbSaveDirectory->text();
    const QString chosen =
        chooseFolder(this, tr("SaveDirectory"), shown.isEmpty() ? m_defaultDirectory : shown);
    if (!chosen.isEmpty())
        m_ui->txbSaveDirectory->setText(chosen);
}

void Setting::onDefault()
{
    m_saveDirectory = m_ui->txbSaveDirectory->text();
    m_ui->txbSaveDirectory->setEnabled(false);
    if (m_browseAllowed)
        m_ui->tolSaveDirectory->setEnabled(false);
    m_ui->txbSaveDirectory->setText(m_defaultDirectory);
}

void Setting::onCustom()
{
    m_ui->txbSaveDirectory->setText(m_saveDirectory);
    m_ui->txbSaveDirectory->setEnabled(true);
    if (m_browseAllowed)
        m_ui->tolSaveDirectory->setEnabled(true);
}

void Setting::AutoCheck()
{
    m_ui->cmbAutoShooting->setEnabled(m_ui->chbAutoShooting->isChecked());
}

void Setting::setBtnSaveEnable(bool enable)
{
    m_browseAllowed = false;
    m_ui->tolSaveDirectory->setEnabled(enable);
}

void Setting::setCmbResoEnable(bool enable)
{
    m_ui->cmbResolution->setEnabled(enable);
}
