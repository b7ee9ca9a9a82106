#pragma once

#include "MvVBLModelGlobal.h"

#include <QList>

#include <functional>

class IMvUndoRedoService;

// Where a model tells its views that it changed. A command that edits many objects opens a batch
// over the model's undo service: until the batch ends the model's notifications are held and
// merged, so that the views repaint once for the whole command. Batches nest; only the end of the
// outermost batch of a service delivers. GUI thread only, like the models it serves.
class MVVBLMODEL_EXPORT MvEventBus
{
public:
    using Delivery = std::function<void()>;

    // Holds the notifications of the model behind the service (of every model when it is null).
    void beginBatch(IMvUndoRedoService* service);
    // Ends the batch begun last and delivers what no open batch holds any more.
    void endBatch();
    int batchDepth() const { return m_batches.size(); }
    bool isHeld(const IMvUndoRedoService* service) const;

    // A model announces a change under its undo service: delivered at once, or, while a batch holds
    // the service, once when it ends, however often the same key was posted (the latest delivery
    // of a key wins, in the order the keys were first posted).
    void post(const IMvUndoRedoService* service, const void* key, Delivery delivery);
    // Drops what is held for the key: its model is going away.
    void cancel(const void* key);

private:
    struct Held
    {
        const IMvUndoRedoService* service;
        const void* key;
        Delivery delivery;
    };

    QList<const IMvUndoRedoService*> m_batches; // innermost last
    QList<Held> m_held;
};

// The model library's one event bus.
MVVBLMODEL_EXPORT MvEventBus* globalEventBus();
