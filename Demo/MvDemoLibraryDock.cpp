#include "MvDemoLibraryDock.h"

#include "MvDemoPropertyWords.h"
#include "MvModelMessages.h"

#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

MvDemoLibraryDock::MvDemoLibraryDock(QWidget* parent)
    : QDockWidget(tr("Library"), parent)
{
    setObjectName(QStringLiteral("libraryDock"));
    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    m_intro = new QLabel(tr("Find Similar asks the media library for resources like the one a clip was made "
                            "from. The library's answers would be listed here; the requests are:"),
        content);
    m_intro->setWordWrap(true);
    m_requests = new QListWidget(content);
    m_requests->setWordWrap(true);
    layout->addWidget(m_intro);
    layout->addWidget(m_requests, 1);
    setWidget(content);
}

bool MvDemoLibraryDock::handleMessage(MvMessage* message, QString* detail)
{
    const auto* request = dynamic_cast<MvMediaLibraryFindSimilarMessage*>(message);
    if (!request)
        return false;
    const ResourceInfoData resource = request->resourceInfoData();
    const QString text = tr("Similar to \u201c%1\u201d on the %2 shelf (resource %3, %4, library %5)")
                             .arg(request->title(), MvDemoPropertyWords::shelfName(request->categoryType()))
                             .arg(resource.resourceId)
                             .arg(resource.resourceGuid)
                             .arg(resource.providerId);
    m_requests->insertItem(0, text);
    m_requests->setCurrentRow(0);
    show();
    raise();
    *detail = text;
    return true;
}

QStringList MvDemoLibraryDock::requests() const
{
    QStringList texts;
    for (int i = 0; i < m_requests->count(); ++i)
        texts.append(m_requests->item(i)->text());
    return texts;
}
