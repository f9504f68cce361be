#include <OrvaneExportKit/platform/NotificationCenter.h>
#include <tests/support/Printers.h>

#include <gtest/gtest.h>

#include <QtCore/QStringList>

#include <memory>
#include <optional>

namespace {

using namespace Qt::Literals::StringLiterals;
using platform::Notification;
using platform::NotificationCenter;
using platform::Observation;

/// A center, two objects that post, and a list of what observers were told.
class NotificationCenterTest : public testing::Test
{
protected:
    /// A handler that writes down a word.
    NotificationCenter::Handler note(const QString &word)
    {
        return [this, word](const Notification &) {
            m_notes.append(word);
        };
    }

    NotificationCenter m_center;
    QObject m_first;
    QObject m_second;
    QStringList m_notes;
};

TEST_F(NotificationCenterTest, TellsNameAndObjectBeforePostingReturns)
{
    std::optional<Notification> told;
    const Observation observation =
        m_center.addObserver(u"Aborted"_s, &m_first, [&](const Notification &notification) { told = notification; });
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    ASSERT_TRUE(told);
    EXPECT_EQ(told->name, u"Aborted"_s);
    EXPECT_EQ(told->object, &m_first);
}

TEST_F(NotificationCenterTest, TellsOnlyThoseWhoObserveNameAndObject)
{
    const Observation first = m_center.addObserver(u"Aborted"_s, &m_first, note(u"first"_s));
    const Observation second = m_center.addObserver(u"Aborted"_s, &m_second, note(u"second"_s));
    const Observation any = m_center.addObserver(u"Aborted"_s, nullptr, note(u"any"_s));
    const Observation other = m_center.addObserver(u"Finished"_s, &m_first, note(u"other"_s));
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, (QStringList{u"first"_s, u"any"_s}));
}

TEST_F(NotificationCenterTest, TellsNobodyOnceTheObservationHasEnded)
{
    {
        const Observation observation = m_center.addObserver(u"Aborted"_s, nullptr, note(u"told"_s));
    }
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, QStringList());
}

TEST_F(NotificationCenterTest, CallsNoObserverThatAnEarlierOneHasRemoved)
{
    Observation second;
    const Observation first = m_center.addObserver(u"Aborted"_s, nullptr, [&](const Notification &) { second = {}; });
    second = m_center.addObserver(u"Aborted"_s, nullptr, note(u"second"_s));
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, QStringList());
}

TEST_F(NotificationCenterTest, LetsObserversRemoveThemselves)
{
    Observation observation;
    observation = m_center.addObserver(u"Aborted"_s, nullptr, [&, word = u"once"_s](const Notification &) {
        observation = {};
        m_notes.append(word);
    });
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, QStringList{u"once"_s});
}

TEST_F(NotificationCenterTest, LetsObserversThatAreAddedMeanwhileWait)
{
    Observation second;
    const Observation first = m_center.addObserver(u"Aborted"_s, nullptr, [&](const Notification &) {
        m_notes.append(u"first"_s);
        second = m_center.addObserver(u"Aborted"_s, nullptr, note(u"second"_s));
    });
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, QStringList{u"first"_s});
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, (QStringList{u"first"_s, u"first"_s}));
}

TEST_F(NotificationCenterTest, LetsObserversPostInTheirTurn)
{
    const Observation outer = m_center.addObserver(u"Aborted"_s, nullptr, [&](const Notification &) {
        m_center.postNotificationName(u"Finished"_s, &m_first);
        m_notes.append(u"aborted"_s);
    });
    const Observation inner = m_center.addObserver(u"Finished"_s, nullptr, note(u"finished"_s));
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, (QStringList{u"finished"_s, u"aborted"_s}));
}

TEST(NotificationCenter, IsOutlivedByItsObserversWhichGoWithTheirObservations)
{
    const auto held = std::make_shared<int>();
    Observation observation;
    {
        NotificationCenter center;
        observation = center.addObserver(u"Aborted"_s, nullptr, [held](const Notification &) {});
    }
    EXPECT_EQ(held.use_count(), 2) << "the observation keeps its handler";
    observation = {};
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NotificationCenterTest, ReleasesAHandlerAsSoonAsItsObservationEnds)
{
    const auto held = std::make_shared<int>();
    Observation observation = m_center.addObserver(u"Aborted"_s, nullptr, [held](const Notification &) {});
    observation = {};
    EXPECT_EQ(held.use_count(), 1);
}

TEST_F(NotificationCenterTest, TellsObserversInTheOrderInWhichTheyCame)
{
    const Observation first = m_center.addObserver(u"Aborted"_s, nullptr, note(u"first"_s));
    Observation second = m_center.addObserver(u"Aborted"_s, &m_first, note(u"second"_s));
    const Observation third = m_center.addObserver(u"Aborted"_s, nullptr, note(u"third"_s));
    second = {};
    const Observation fourth = m_center.addObserver(u"Aborted"_s, &m_first, note(u"fourth"_s));
    m_center.postNotificationName(u"Aborted"_s, &m_first);
    EXPECT_EQ(m_notes, (QStringList{u"first"_s, u"third"_s, u"fourth"_s}));
}

} // namespace
