// What Setting stores: its choices, the settings file and the getters.
#include "settings/setting.h"

#include "settings/settingsfile.h"
#include "ui_setting.h"

namespace
{

const QString autoShootKey = QStringLiteral("AutoShoot");
const QString autoShootTimeKey = QStringLiteral("AutoShootTime");
const QString continuShootCountKey = QStringLiteral("ContinuShootCount");
const QString photoPreviewKey = QStringLiteral("PhotoPreview");
const QString resolutionKey = QStringLiteral("Resolution");
const QString saveDirectoryKey = QStringLiteral("SaveDirectory");

void fill(QComboBox *combo, const QStringList &choices)
{
    combo->clear();
    combo->addItems(choices);
}

void selectOrFirst(QComboBox *combo, int number)
{
    setCurrentIndex(combo, QString::number(number));
    if (combo->currentIndex() < 0)
        combo->setCurrentIndex(0);
}

// Takes a number that lies in the range, and leaves the one before otherwise.
void takeInRange(int value, int least, int most, int &target)
{
    if (value >= least && value <= most)
        target = value;
}

} // namespace

void setCurrentIndex(QComboBox *combo, const QString &text)
{
    combo->setCurrentIndex(combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void Setting::setDefaultValue()
{
    m_autoShootTimeList = QStringList{"1", "2", "3", "4", "5", "10", "15", "20", "30"};
    m_continuousCountList = QStringList{"2", "3", "4", "6", "9"};
    m_resolutionList = QStringList{"640x480"};
}

void Setting::setCmbValue()
{
    fill(m_ui->cmbResolution, m_resolutionList);
    fill(m_ui->cmbAutoShooting, m_autoShootTimeList);
    fill(m_ui->cmbContinuousShooting, m_continuousCountList);
}

void Setting::readFile()
{
    const QVariantMap file = SettingsFile::read({autoShootKey, autoShootTimeKey, continuShootCountKey,
                                                 photoPreviewKey, resolutionKey, saveDirectoryKey});
    const int autoShoot = file.value(autoShootKey, 1).toInt();
    takeInRange(autoShoot, 0, 1, m_autoShoot);
    m_ui->cmbAutoShooting->setEnabled(autoShoot == 1);
    takeInRange(file.value(autoShootTimeKey, 5).toInt(), 1, 30, m_autoShootTime);
    takeInRange(file.value(continuShootCountKey, 4).toInt(), 2, 9, m_continuousCount);
    takeInRange(file.value(photoPreviewKey, 1).toInt(), 0, 1, m_photoPreview);
    m_resolution = file.value(resolutionKey).toString();
    m_saveDirectory = file.value(saveDirectoryKey).toString();
    showSaveDirectoryChoice();
}

void Setting::showSaveDirectoryChoice()
{
    const bool custom = !m_saveDirectory.isEmpty();
    // Checking one of the two unchecks the other; neither can be unchecked by itself.
    (custom ? m_ui->rbtnCustom : m_ui->rbtnDefault)->setChecked(true);
    m_ui->txbSaveDirectory->setEnabled(custom);
    m_ui->tolSaveDirectory->setEnabled(custom);
}

void Setting::setParam()
{
    m_ui->chbAutoShooting->setChecked(m_autoShoot == 1);
    selectOrFirst(m_ui->cmbAutoShooting, m_autoShootTime);
    AutoCheck();
    selectOrFirst(m_ui->cmbContinuousShooting, m_continuousCount);
    selectResolution(m_ui->cmbResolution->count() / 2);
    m_ui->txbSaveDirectory->setText(m_saveDirectory.isEmpty() ? m_defaultDirectory : m_saveDirectory);
    m_ui->chbPhotoPreview->setChecked(m_photoPreview == 1);
}

void Setting::selectResolution(int otherwise)
{
    setCurrentIndex(m_ui->cmbResolution, m_resolution);
    if (m_ui->cmbResolution->currentIndex() < 0)
        m_ui->cmbResolution->setCurrentIndex(otherwise);
}

void Setting::SaveFile()
{
    m_autoShoot = getAutoShooting() ? 1 : 0;
    m_autoShootTime = getAutoShootingTime();
    m_continuousCount = m_ui->cmbContinuousShooting->currentText().toInt();
    m_photoPreview = getPhotoPreview() ? 1 : 0;
    m_resolution = getResolution();
    m_saveDirectory = m_ui->rbtnCustom->isChecked() ? getSaveDirectory() : QString();
    SettingsFile::write({{autoShootKey, m_autoShoot},
                         {autoShootTimeKey, m_autoShootTime},
                         {continuShootCountKey, m_continuousCount},
                         {photoPreviewKey, m_photoPreview},
                         {resolutionKey, m_resolution},
                         {saveDirectoryKey, m_saveDirectory}});
}

void Setting::setResolutionList(const QStringList &list)
{
    if (list.isEmpty())
        return;
    m_resolutionList = list;
    m_resolutionList.removeDuplicates();
    fill(m_ui->cmbResolution, m_resolutionList);
    // The middle of the list as the camera gave it: with many duplicates it lies beyond what is left, and
    // then nothing is selected.
    selectResolution(list.size() / 2);
}

bool Setting::getAutoShooting() const
{
    return m_ui->chbAutoShooting->isChecked();
}

int Setting::getAutoShootingTime() const
{
    return m_ui->cmbAutoShooting->currentText().toInt();
}

int Setting::getContinuousShooting() const
{
    const QString text = m_ui->cmbContinuousShooting->currentText();
    return text.isEmpty() ? -1 : text.toInt();
}

bool Setting::getPhotoPreview() const
{
    return m_ui->chbPhotoPreview->isChecked();
}

QString Setting::getResolution() const
{
    return m_ui->cmbResolution->currentText();
}

QString Setting::getSaveDirectory() const
{
    return m_ui->txbSaveDirectory->text();
}
