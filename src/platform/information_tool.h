#pragma once

/// What has come of starting the system's own information tool.
enum class InformationTool {
    started,
    /// The system should have one, and it cannot be found or started.
    unavailable,
    /// Systems of this kind have none; the program tells what it knows itself.
    unknown
};

/// Starts the program with which the system tells about itself, and does not wait for it. One source a system.
[[nodiscard]] InformationTool start_information_tool();
