#pragma once

#include <QImage>
#include <QObject>
#include <QString>

enum class CameraState {
    Unknown, // nobody has looked for one yet
    None,
    Opening, // gives no picture so far
    Live,
    Lost
};
enum class MovieState {
    None,
    Recording,
    Ended,    // by itself; RecordStop() is yet to be called
    Finishing // its file is not whole yet
};
enum class PhotoState { None, Pending, Done, Failed };
enum class SoundState { There, Missing, LostInMovie };

// Why something ended or failed, as far as what the user reads differs. The whole reason stands on stderr.
enum class Cause {
    None,
    Unplugged,
    Refused, // busy, not permitted, or no room on the bus
    Camera,  // it gave no picture
    Disk,    // full, or it does not answer
    Failure
};

// What is so at this moment with camera, movie, photo and sound.
struct Facts {
    struct Camera {
        CameraState state = CameraState::Unknown;
        Cause why = Cause::None; // of a lost one
    };
    struct Movie {
        MovieState state = MovieState::None;
        Cause why = Cause::None; // of one that ended by itself
        QString path;            // of the latest; empty before the first
        bool hasPreview = false; // the latest; no list shows it without
        bool isBroken = false;   // the file of one that had ended lacks its end, and nobody was told so far
    };
    struct Photo {
        PhotoState state = PhotoState::None;
        Cause why = Cause::None; // of a failed one
        QString name;            // bare; empty when it failed
        QImage picture;          // of a pending one, once it is taken
    };

    Camera camera;
    Movie movie;
    Photo photo;
    SoundState sound = SoundState::There;
    int quarterTurns = 0;   // clockwise, of the live picture
    bool hasRoom = true;    // on the disk, for one more capture, as last looked at
    bool canReopen = false; // no camera is open, but one is there that could be
    // A photo or a movie has been waited for long enough for somebody to press something meanwhile.
    bool isHeldUp = false;

    // Whether pictures come or are to be expected; so too as long as nobody has looked.
    bool hasCamera() const { return camera.state != CameraState::None && camera.state != CameraState::Lost; }
    bool isMovieRunning() const
    {
        return movie.state == MovieState::Recording || movie.state == MovieState::Ended;
    }
};

// The one place where these facts stand. The live view writes them; whoever shows them follows changed().
class CaptureFacts : public QObject
{
    Q_OBJECT

public:
    const Facts &now() const { return m_facts; }

    // Lets the function change what it wants, and tells of it once.
    template<typename Change> void change(Change function)
    {
        function(m_facts);
        emit changed();
    }

signals:
    void changed();

private:
    Facts m_facts;
};
