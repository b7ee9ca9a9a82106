#pragma once

#include "MvCoreGlobal.h"

#include <QVariant>

// A message from a presenter to the scene that hosts it. Subclasses carry payloads; the scene
// may write an answer into the message before the synchronous send returns.
class MVCORE_EXPORT MvMessage
{
public:
    explicit MvMessage(int id);
    virtual ~MvMessage();

    int id() const { return m_id; }
    // Short class name, so that a scene or a test can tell message kinds apart without RTTI.
    virtual const char* typeName() const;

private:
    int m_id;
};

// Request and answer in one object: the sender sets data, the scene may replace it.
class MVCORE_EXPORT MvDataMessage : public MvMessage
{
public:
    explicit MvDataMessage(int id, const QVariant& data = QVariant());

    QVariant data() const { return m_data; }
    void setData(const QVariant& data) { m_data = data; }
    const char* typeName() const override;

private:
    QVariant m_data;
};

// A question to the scene; an unanswered question reads as false.
class MVCORE_EXPORT MvQueryMessage : public MvMessage
{
public:
    explicit MvQueryMessage(int id);

    void setAnswer(const QVariant& answer) { m_answer = answer; }
    QVariant answer() const { return m_answer; }
    bool isAnswered() const { return m_answer.isValid(); }
    bool asBool() const { return m_answer.toBool(); }
    const char* typeName() const override;

private:
    QVariant m_answer;
};
