// Out-of-line destructors of the contract's interfaces, so each has one home for its vtable.
#include "IMvAbstractClip.h"
#include "IMvAbstractMediaItem.h"
#include "IMvClipEditService.h"
#include "IMvClipItems.h"
#include "IMvColorCompareService.h"
#include "IMvEffect.h"
#include "IMvKeyFrameSelector.h"
#include "IMvMarker.h"
#include "IMvProjectManager.h"
#include "IMvResourceInfo.h"
#include "IMvSelection.h"
#include "IMvTimeline.h"
#include "IMvTimelineClip.h"
#include "IMvTimelinePlayhead.h"
#include "IMvTimelineRenderService.h"
#include "IMvTimelineRuler.h"
#include "IMvTrack.h"
#include "IMvTransitionMediaItem.h"
#include "IMvUndoRedoService.h"

IMvAbstractClip::~IMvAbstractClip() = default;
IMvMediaInfo::~IMvMediaInfo() = default;
IMvAbstractMediaItem::~IMvAbstractMediaItem() = default;
IMvStockMediaItem::~IMvStockMediaItem() = default;
IMvVCGMediaItem::~IMvVCGMediaItem() = default;
IMvCompoundMediaItem::~IMvCompoundMediaItem() = default;
IMvTransitionList::~IMvTransitionList() = default;
IMvClipTransitions::~IMvClipTransitions() = default;
IMvTransitionMediaItem::~IMvTransitionMediaItem() = default;
IMvEffect::~IMvEffect() = default;
IMvEffectContainer::~IMvEffectContainer() = default;
IMvEffectMediaItem::~IMvEffectMediaItem() = default;
IMvProjectSettings::~IMvProjectSettings() = default;
IMvProjectManager::~IMvProjectManager() = default;
IMvClipEditService::~IMvClipEditService() = default;
IMvFreezeFrameList::~IMvFreezeFrameList() = default;
IMvSmartKeyingNodes::~IMvSmartKeyingNodes() = default;
IMvColorCompareService::~IMvColorCompareService() = default;
IMvKeyFrameSelector::~IMvKeyFrameSelector() = default;
IMvKeyFrameClipboard::~IMvKeyFrameClipboard() = default;
IMvMarker::~IMvMarker() = default;
IMvMarkerList::~IMvMarkerList() = default;
IMvMarkerModel::~IMvMarkerModel() = default;
IMvSelection::~IMvSelection() = default;
IMvSubItemSelection::~IMvSubItemSelection() = default;
IMvTimeline::~IMvTimeline() = default;
IMvTimelineClip::~IMvTimelineClip() = default;
IMvResourceInfo::~IMvResourceInfo() = default;
IMvPlayheadEventObserver::~IMvPlayheadEventObserver() = default;
IMvTimelinePlayhead::~IMvTimelinePlayhead() = default;
IMvTimelineRenderEventObserver::~IMvTimelineRenderEventObserver() = default;
IMvTimelineRenderService::~IMvTimelineRenderService() = default;
IMvTimelineRulerEventObserover::~IMvTimelineRulerEventObserover() = default;
IMvTimelineRuler::~IMvTimelineRuler() = default;
IMvTrack::~IMvTrack() = default;
IMvUndoRedoService::~IMvUndoRedoService() = default;

MvUndoRedoCommander::MvUndoRedoCommander(IMvUndoRedoService* service, const QString& name, const QString& source)
    : m_service(service)
{
    if (m_service)
        m_service->beginStep(name, source);
}

MvUndoRedoCommander::~MvUndoRedoCommander()
{
    if (m_service)
        m_service->endStep();
}

MvPauseEventCommander::MvPauseEventCommander(IMvUndoRedoService* service)
    : m_service(service)
{
    if (m_service)
        m_service->pauseEvents();
}

MvPauseEventCommander::~MvPauseEventCommander()
{
    if (m_service)
        m_service->resumeEvents();
}

void IMvClip::changeUserData(IMvClip* clip, int key, const QString& value)
{
    if (clip)
        clip->setUserData(key, value);
}

namespace {
// The host's manager; the GUI thread installs it and reads it.
IMvProjectManager* installedProjectManager = nullptr;
}

IMvProjectManager* IMvProjectManager::getInstance()
{
    return installedProjectManager;
}

void IMvProjectManager::setInstance(IMvProjectManager* manager)
{
    installedProjectManager = manager;
}
