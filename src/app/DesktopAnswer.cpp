#include "DesktopAnswer.h"

#include <QCoreApplication>
#include <QUrl>

namespace {

struct ResultWord
{
    DesktopAnswer::Result result;
    const char *word;
};

constexpr ResultWord kWords[] = {
    {DesktopAnswer::Result::Done, "ok"},
    {DesktopAnswer::Result::Failed, "failed"},
    {DesktopAnswer::Result::UsageError, "usage"},
    {DesktopAnswer::Result::UnknownLocation, "unknown-location"},
    {DesktopAnswer::Result::Busy, "busy"},
    {DesktopAnswer::Result::SignedOut, "signed-out"},
    {DesktopAnswer::Result::NotInPlan, "not-in-plan"},
};

const char kDetail[] = "detail=";

} // namespace

QByteArray DesktopAnswer::encode() const
{
    QByteArray line;
    for (const ResultWord &entry : kWords) {
        if (entry.result == result)
            line = entry.word;
    }
    if (!detail.isEmpty())
        line += ' ' + QByteArray(kDetail) + QUrl::toPercentEncoding(detail);
    return line;
}

bool DesktopAnswer::parse(const QByteArray &line, DesktopAnswer *out)
{
    const QByteArray trimmed = line.trimmed();
    const qsizetype space = trimmed.indexOf(' ');
    const QByteArray word = space < 0 ? trimmed : trimmed.left(space);
    for (const ResultWord &entry : kWords) {
        if (word != entry.word)
            continue;
        out->result = entry.result;
        const QByteArray rest = space < 0 ? QByteArray() : trimmed.mid(space + 1);
        out->detail = rest.startsWith(kDetail)
                          ? QUrl::fromPercentEncoding(rest.mid(qsizetype(sizeof(kDetail)) - 1))
                          : QString();
        return true;
    }
    return false;
}

QString DesktopAnswer::message() const
{
    switch (result) {
    case Result::Done:
        return {};
    case Result::UnknownLocation:
        return tr("tovra: no location matches \u201c%1\u201d").arg(detail);
    case Result::Busy:
        return tr("tovra: Tovra is busy with another connection or sign-in; try again when it "
                  "has finished");
    case Result::SignedOut:
        return tr("tovra: sign in to Tovra before connecting");
    case Result::NotInPlan:
        return tr("tovra: your plan does not include \u201c%1\u201d").arg(detail);
    case Result::UsageError:
    case Result::Failed:
        break;
    }
    return detail.isEmpty() ? tr("tovra: the request failed") : tr("tovra: %1").arg(detail);
}
