#!/usr/bin/env python3
"""Plants deliberate faults, one at a time, into a copy of the sources and tells which of them the
test suite catches: the measure of how much the tests are worth. Each fault is the kind of slip a
developer makes (a field left out of a comparison, a bound off by one, a forgotten update).

    tools/fault-run.py                  every fault, the whole suite
    tools/fault-run.py --tests Random   the suites whose names match, only
    tools/fault-run.py --only undo-      the faults whose names start so

The copy and its build live in build/fault-run/; the sources themselves are never touched. When
MV_BUILD_LOCK names a file, every build takes an exclusive lock on it (machines shared by several
builders). Exit status 1 when a fault went unnoticed or no longer applies (or builds)."""
import argparse
import fcntl
import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "fault-run"
MEMORY = "Src/MvTimelineModel/MvVBLModel/Memory/"
LIB = "Src/MvTimeline/"

# (name, file, text as it is, text with the fault)
FAULTS = [
    # The undo record: values left out, restored wrongly, steps kept wrongly.
    ("undo-forgets-clip-rotation", MEMORY + "MvMemoryClip.cpp",
     "const bool sameRotation = rotation == other.rotation;", "const bool sameRotation = true;"),
    ("undo-forgets-freeze-frames", MEMORY + "MvMemoryClip.cpp",
     "&& freezeFrames == other.freezeFrames", ""),
    ("undo-forgets-video-keys", MEMORY + "MvMemoryClip.cpp",
     "&& videoKeys == other.videoKeys", ""),
    ("undo-forgets-transition-length", MEMORY + "MvMemoryClip.h",
     "placement == other.placement && length == other.length", "placement == other.placement"),
    ("undo-forgets-marker-name", MEMORY + "MvMemoryMarker.h",
     "color == other.color && name == other.name", "color == other.color"),
    ("undo-forgets-track-lock", MEMORY + "MvMemoryTrack.h",
     "return type == other.type && locked == other.locked && visible", "return type == other.type && visible"),
    ("undo-forgets-track-mute", MEMORY + "MvMemoryTrack.h", " && muted == other.muted", ""),
    ("undo-forgets-frame-rate", MEMORY + "MvMemoryTimeline_p.h",
     "return rows == other.rows && frameRate == other.frameRate;", "return rows == other.rows;"),
    ("undo-forgets-group-members", MEMORY + "MvMemoryGroups.h",
     "return members == other.members && kind == other.kind && live == other.live;",
     "return kind == other.kind && live == other.live;"),
    ("undo-applies-afters", MEMORY + "MvMemoryUndoRecorder.cpp",
     "it->object->loadValue(*it->before);", "it->object->loadValue(*it->after);"),
    ("undo-skips-tidying", MEMORY + "MvMemoryUndoService.cpp",
     "    m_recorder->apply(m_redo.back().changes, true);\n    if (m_restored)\n        m_restored();",
     "    m_recorder->apply(m_redo.back().changes, true);"),
    ("new-step-keeps-redo", MEMORY + "MvMemoryUndoService.cpp",
     "    m_undo.push_back(std::move(closed));\n    m_redo.clear();", "    m_undo.push_back(std::move(closed));"),
    ("redo-stays-on-stack", MEMORY + "MvMemoryUndoService.cpp",
     "    m_undo.push_back(std::move(m_redo.back()));\n    m_redo.pop_back();",
     "    m_undo.push_back(m_redo.back());"),
    # The edit rules of the model.
    ("move-allows-touching-clips", MEMORY + "MvMemoryTimelineEdits.cpp",
     "if (i > 0 && landing[i].first <= landing[i - 1].second)", "if (i > 0 && landing[i].first < landing[i - 1].second)"),
    ("move-past-frame-zero", MEMORY + "MvMemoryTimelineEdits.cpp",
     ": clip->start() + frameOffset >= 0;", ": clip->start() + frameOffset >= -1;"),
    ("ripple-closes-one-frame-short", MEMORY + "MvMemoryTimelineEdits.cpp",
     "shift += removed.at(passed++)->frameCount();", "shift += removed.at(passed++)->frameCount() - 1;"),
    ("split-piece-keeps-tail-keys-unshifted", MEMORY + "MvMemoryTimelineEdits.cpp",
     "tail.insert(it.key() - offset, it.value());", "tail.insert(it.key(), it.value());"),
    ("delete-keeps-group", MEMORY + "MvMemoryTimelineEdits.cpp",
     "    for (MvMemoryClip* clip : live)\n        d->detach(clip);\n    d->groups->removeMembers(live);",
     "    for (MvMemoryClip* clip : live)\n        d->detach(clip);"),
    ("trim-start-ignores-lock", MEMORY + "MvMemoryTimelineEdits.cpp",
     "    if (!editable(clip) || !(clip->start() < frame && frame <= clip->end()))",
     "    if (!clip || !clip->isOnTimeline() || !(clip->start() < frame && frame <= clip->end()))"),
    ("clear-empty-tracks-drops-locked-rows", MEMORY + "MvMemoryTracks.cpp",
     "keep[row] = rows.at(row)->clipCount() > 0 || rows.at(row)->isLocked();",
     "keep[row] = rows.at(row)->clipCount() > 0;"),
    ("media-clip-may-end-on-the-last-frame", MEMORY + "MvMemoryTimelineMedia.cpp",
     "if (length > std::numeric_limits<qint64>::max() - start)",
     "if (length - 1 > std::numeric_limits<qint64>::max() - start)"),
    ("playhead-left-past-the-end", MEMORY + "MvMemoryPlayhead.cpp",
     "    if (currentFrame() > last)\n        moveTo(last);", ""),
    ("selection-keeps-removed-clips", MEMORY + "MvMemorySelection.cpp",
     "        if (own && !live && m_marks.isMarked(own->undoSerial())) {",
     "        if (own && !live && m_marks.isMarked(own->undoSerial()) && false) {"),
    # The presenters.
    ("move-clamp-off-by-one", LIB + "MvTimelinePresenterClipMove.cpp",
     "            frameOffset = -minStart;", "            frameOffset = -minStart + 1;"),
    ("vertical-move-drops-audio-bound", LIB + "MvTimelinePresenterClipMove.cpp",
     "    if (audio.maximum + audio.offset > audioLimit)\n        audio.offset = 0;\n", ""),
    ("split-regroup-skipped", LIB + "MvTimelinePresenterClipEdit.cpp",
     "    if (needGroupAfter) {", "    if (needGroupAfter && false) {"),
    ("trim-on-several-selected", LIB + "MvTimelinePresenterClipEdit.cpp",
     "    if (!selection || selection->count() != 1)", "    if (!selection || selection->count() < 1)"),
    ("ripple-playhead-not-moved", LIB + "MvTimelinePresenterClipEdit.cpp",
     "    MvModelAccess::setPlayheadFrame(timeline, first);\n    return result;", "    return result;"),
    ("marker-range-excludes-last-frame", LIB + "MvTimelineModelAccess.cpp",
     "        if (range.contains(frame))\n            return clipList;",
     "        if (range.contains(frame) && frame != range.last)\n            return clipList;"),
    ("keyframe-shortcut-keeps-audio-clips", LIB + "MvKeyFramePresenter.cpp",
     "        if (clips.at(i)->type() == ClipType_Audio)", "        if (false)"),
    ("clear-all-keys-counts-failures", LIB + "MvKeyFramePresenter.cpp",
     "    return removals == 0;", "    return removals != 0;"),
    ("freeze-frame-selection-kept", LIB + "MvTimelinePresenterItems.cpp",
     "    subItems->clear();\n    return freezeFrames->remove(id);", "    return freezeFrames->remove(id);"),
    ("media-start-not-converted", LIB + "MvTimelinePresenterMediaInsertion.cpp",
     "request.startFrame = convertedStartFrame(param.startFrame, oldFps, newFps);",
     "request.startFrame = param.startFrame;"),
    ("cut-transition-moves-playhead", LIB + "MvTimelinePresenterClipboard.cpp",
     "        editService->cut(items);\n        return;\n    }", "    }"),
    ("ruler-observer-left-registered", LIB + "MvTimelineRulerPresenter.cpp",
     "    if (ruler)\n        ruler->removeObserver(this);\n    if (playhead)",
     "    if (playhead)"),
    ("playhead-widget-keeps-deleted-presenter", LIB + "MvTimelinePlayheadWidget.cpp",
     "        m_presenter = nullptr;\n        update();", "        update();"),
]


def run(command, cwd, quiet=True):
    lock = os.environ.get("MV_BUILD_LOCK")
    handle = open(lock, "w") if lock else None
    try:
        if handle:
            fcntl.flock(handle, fcntl.LOCK_EX)
        return subprocess.run(command, cwd=cwd, capture_output=quiet, text=True).returncode
    finally:
        if handle:
            handle.close()


def build(tree):
    return run(["cmake", "--build", str(tree / "build"), "-j", str(os.cpu_count() or 2)], tree) == 0


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--tests", default="", help="only the suites whose names match (ctest -R)")
    parser.add_argument("--only", default="", help="only the faults whose names start so")
    args = parser.parse_args()

    src = WORK / "src"
    if src.exists():
        shutil.rmtree(src)
    files = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    for name in files:
        (src / name).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy2(ROOT / name, src / name)
    configure = ["cmake", "-S", str(src), "-B", str(src / "build"), "-DCMAKE_BUILD_TYPE=Debug", "-DMV_WERROR=OFF",
                 "-DMV_BUILD_DEMO=OFF", "-DMV_BUILD_BENCH=OFF"]
    if run(configure, src) != 0 or not build(src):
        print("the unchanged sources do not build")
        return 1
    test = ["ctest", "--test-dir", str(src / "build"), "-j", str(os.cpu_count() or 2), "--timeout", "300"]
    if args.tests:
        test += ["-R", args.tests]
    if subprocess.run(test, capture_output=True).returncode != 0:
        print("the unchanged sources fail their tests")
        return 1

    caught, missed, stale = [], [], []
    for name, path, before, after in FAULTS:
        if not name.startswith(args.only):
            continue
        target = src / path
        original = target.read_text()
        if original.count(before) != 1:
            stale.append(name)
            print(f"{name}: no longer applies")
            continue
        target.write_text(original.replace(before, after))
        try:
            builds = build(src)
            found = builds and subprocess.run(test, capture_output=True).returncode != 0
        finally:
            target.write_text(original)
        if not builds:
            stale.append(name)
            print(f"{name}: does not build", flush=True)
            continue
        (caught if found else missed).append(name)
        print(f"{name}: {'caught' if found else 'MISSED'}", flush=True)
    build(src)
    total = len(caught) + len(missed)
    print(f"{len(caught)} of {total} faults caught ({100 * len(caught) // max(1, total)}%)"
          + (f"; missed: {', '.join(missed)}" if missed else "") + (f"; stale: {', '.join(stale)}" if stale else ""))
    return 1 if missed or stale else 0


if __name__ == "__main__":
    sys.exit(main())
