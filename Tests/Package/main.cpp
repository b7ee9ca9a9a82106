#include <MvTimelinePresenter.h>

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    MvTimelinePresenter presenter(nullptr, nullptr);
    presenter.setModeType(MvTimelinePresenter::BladeMode);
    return presenter.config()->fixedTrackCount() == 2 && presenter.modeType() == MvTimelinePresenter::BladeMode ? 0 : 1;
}
