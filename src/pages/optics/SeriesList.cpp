#include "pages/optics/SeriesList.h"

#include "pages/optics/FoucaultSession.h"
#include "painting/QtText.h"

#include <QSignalBlocker>

void ListSeries(QComboBox& list, const CFoucaultSession& session)
{
    const QSignalBlocker blocker(&list);
    list.clear();
    for (const ReadingSeries& series : session.Book().series) {
        list.addItem(ToQString(series.name));
    }
    list.setCurrentIndex(session.Current());
}
