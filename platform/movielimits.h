#pragma once

// A movie is recorded for this long at most.
constexpr int longestRecordingSeconds = 600;
