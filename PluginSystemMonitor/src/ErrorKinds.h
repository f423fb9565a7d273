#ifndef ERRORKINDS_H
#define ERRORKINDS_H

/// What is wrong. Travels as an int, in the error list and in the keys of its rows.
enum ErrorType : int {
    HighCpuUsage = 0,
    HighMemoryUsage = 1,
    HighNetworkUsage = 2,
    CameraDisconnected = 3,
    StationDisconnected = 4,
    VolumeDisconnected = 5,
    Reserved = 6, ///< nothing raises it; the numbers around it are contracts and do not move
    InsufficientRecordingDays = 7,
};

/// Whose error it is. Travels as an int; each value is one bit of the proxy's category mask.
enum ErrorCategory : int {
    SystemCategory = 1, ///< an error of a station
    CameraCategory = 2, ///< an error of a camera
};

#endif
