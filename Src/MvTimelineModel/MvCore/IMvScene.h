#pragma once

#include "MvCoreGlobal.h"

class MvMessage;

// What a host puts behind its presenters: every message a presenter sends ends here, synchronously.
// A message object may be answered by writing into it before returning.
class MVCORE_EXPORT IMvScene
{
public:
    virtual ~IMvScene();

    virtual void receiveMessage(int id) = 0;
    virtual void receiveMessage(MvMessage* message) = 0;
};
