#pragma once

#include <QByteArray>
#include <optional>

#include "platform/NewsFeeds.h"

// The titles of a feed, RSS or Atom, by its bytes: the newest first where each of them tells its date, else in the
// order of the feed. Nothing for what is no feed, is torn or declares entities, which may grow without bound. Looks at
// nothing else: no document type is fetched.
std::optional<FeedTitles> ReadFeed(const QByteArray& body);
