#pragma once

constexpr int longestRecordingSeconds = 600;
