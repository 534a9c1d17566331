#pragma once

#include <QString>

// The names of captures: "photo<stamp>.png", "movie<stamp>.mov", and beside a movie its preview picture
// "movie<stamp>tmp.png". These operations look at names only, bare or with a path. Any thread.

inline const QLatin1String photoPrefix("photo");
inline const QLatin1String moviePrefix("movie");
inline const QLatin1String photoEnding(".png");
inline const QLatin1String movieEnding(".mov");
inline const QLatin1String temporaryMark("tmp");
inline const QLatin1String previewEnding("tmp.png");

// The name of a movie's preview picture, and of a preview picture's movie. Every occurrence of the ending is
// replaced.
inline QString previewName(QString movie)
{
    return movie.replace(movieEnding, previewEnding);
}
inline QString movieName(QString preview)
{
    return preview.replace(previewEnding, movieEnding);
}

// Wildcards for names that start as photos or movies do, and end as told.
inline QString photoFilter(QLatin1String ending = QLatin1String())
{
    return photoPrefix + QLatin1Char('*') + ending;
}
inline QString movieFilter(QLatin1String ending = QLatin1String())
{
    return moviePrefix + QLatin1Char('*') + ending;
}
