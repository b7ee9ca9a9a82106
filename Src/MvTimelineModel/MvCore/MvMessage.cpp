#include "MvMessage.h"

MvMessage::MvMessage(int id)
    : m_id(id)
{
}

MvMessage::~MvMessage() = default;

const char* MvMessage::typeName() const
{
    return "MvMessage";
}

MvDataMessage::MvDataMessage(int id, const QVariant& data)
    : MvMessage(id)
    , m_data(data)
{
}

const char* MvDataMessage::typeName() const
{
    return "MvDataMessage";
}

MvQueryMessage::MvQueryMessage(int id)
    : MvMessage(id)
{
}

const char* MvQueryMessage::typeName() const
{
    return "MvQueryMessage";
}
