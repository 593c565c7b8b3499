#pragma once

#include "park/answer_table.h"
#include "park/behaviour.h"
#include "park/gate.h"
#include "park/html_templates.h"
#include "park/received_log.h"
#include "park/site_table.h"

namespace lanterra {

/// The practice web's own pages: what there is, what was received, how badly it can behave. All give UTF-8.
class ParkPages {
public:
    ParkPages();

    /// All sites by kind, with links to their forms.
    QByteArray FrontPage(const SiteTable &sites, const AnswerTable &answers, qsizetype behaviourCount) const;

    /// Fifty receipts, newest first; `page` counts from 1, and one outside the range is the nearest inside.
    QByteArray ReceivedPage(const ReceivedLog &log, int page) const;

    /// The behaviours and the gates, these with the ports of the open ones.
    QByteArray BehaviourPage(const BehaviourTable &behaviours, const GateTable &gates,
                             const QList<OpenGate> &openGates) const;

    /// A page of words, without slots.
    QByteArray MessagePage(const AnswerText &answer) const;

private:
    Html SiteCard(const PracticeSite &site, const AnswerTable &answers) const;
    Html ReceiptCard(const Receipt &receipt) const;
    Html GateRows(const Gate &gate, const QList<OpenGate> &openGates) const;
    Html FieldRows(const QList<FormField> &fields) const;
    Html PageLinks(int page, int pageCount) const;
    QByteArray Frame(const QString &title, const QString &lead, const Html &content) const;

    HtmlTemplates templates;
};

} // namespace lanterra
