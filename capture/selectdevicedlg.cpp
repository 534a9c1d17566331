#include "capture/selectdevicedlg.h"

#include "platform/documentcamera.h"
#include "util/desktop/fonts.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int dialogWidth = 200;

// Device names are often longer than the dialog is wide: the open list shows them whole.
void widenListToItsNames(QComboBox *box)
{
    QAbstractItemView *list = box->view();
    list->setMinimumWidth(list->sizeHintForColumn(0) + 2 * list->frameWidth());
}

} // namespace

SelectDeviceDlg::SelectDeviceDlg(QWidget *parent) : QDialog(parent), m_devices(new QComboBox)
{
    setWindowTitle(tr("Orvane"));
    setWindowIcon(QIcon(":/res/Pictorel.png"));
    setWindowFlags((windowFlags() & ~Qt::WindowContextHelpButtonHint) | Qt::CustomizeWindowHint |
                   Qt::WindowStaysOnTopHint);
    setModal(true);

    auto *caption = new QLabel(tr("Please select a device:"));
    caption->setFont(dialogFont());
    caption->setBuddy(m_devices);
    auto *ok = new QPushButton(tr("OK"));
    ok->setFont(dialogFont());
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(m_devices);
    layout->addWidget(ok);
    setFixedWidth(dialogWidth);
}

void SelectDeviceDlg::setVideoDeviceList(const QStringList &names)
{
    QStringList rows;
    const auto addNames = [&](bool documentCameras) {
        for (int i = 0; i < names.size(); ++i) {
            if (isDocumentCamera(names.at(i)) != documentCameras || m_indexOfRow.contains(i))
                continue;
            rows << names.at(i);
            m_indexOfRow << i;
        }
    };
    addNames(true);
    addNames(false);
    m_devices->addItems(rows);
    m_devices->setCurrentIndex(0);
    widenListToItsNames(m_devices);
}

int SelectDeviceDlg::getVideoDevice() const
{
    return m_indexOfRow.value(m_devices->currentIndex(), -1);
}

QString SelectDeviceDlg::getVideoDeviceName() const
{
    return m_devices->currentText();
}
