#include "pages/optics/PropertyPageMatchingRonchi2.h"

#include "views/MatchingRonchiWidget.h"

#include <QScrollArea>
#include <QVBoxLayout>

CPropertyPageMatchingRonchi2::CPropertyPageMatchingRonchi2(COrrevaDoc& document, QWidget* parent)
    : CPropertyPage(parent)
{
    // On a low screen the picture scrolls.
    auto* const scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(new CMatchingRonchiWidget(document, scroll));
    auto* const fill = new QVBoxLayout(this);
    fill->setContentsMargins(0, 0, 0, 0);
    fill->addWidget(scroll);
}

#include "moc_PropertyPageMatchingRonchi2.cpp"
