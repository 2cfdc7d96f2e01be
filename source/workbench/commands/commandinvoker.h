#pragma once

#include "RxObjectImpl.h"
#include "vndialogs.h"

#include <functional>

/// Passes the requests of a dialog to the command that shows it.
class CommandInvoker : public vnsi::VnUiDialogInvoker
{
public:
    using Answer = std::function<void(const vnsi::VnJsonPtr& tree)>;

    static OdRxObjectPtr make(Answer answer)
    {
        return OdRxObjectImpl<CommandInvoker, VnUiDialogInvoker>::createObject(std::move(answer));
    }

    explicit CommandInvoker(Answer answer) : m_answer(std::move(answer)) {}
    void invoke(vnsi::VnJsonPtr tree) override { m_answer(tree); }

private:
    Answer m_answer;
};
