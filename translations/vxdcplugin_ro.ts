<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ro" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>În direct</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Captură
continuă</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Oprire</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Listă</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ieșire</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Păstrare</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Reluare</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Redare</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauză</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Afișare</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Video /
    Foto</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Foto /
    Video</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Lipire</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Încărcare</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Imagine statică</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Nu s-a găsit nicio cameră.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Nu s-a găsit niciun microfon.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Nu s-a găsit nicio cameră și niciun microfon.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera nu este disponibilă. Verificați dacă este conectată corect. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Salvarea nu a reușit.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Se încarcă fișierele. Așteptați...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Fișierele au fost încărcate.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Încărcarea nu a reușit.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Încărcare folder</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Arată acestea până la următoarea tastă sau atingere</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>La butonul următor</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Înapoi la butonul anterior</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Apasă butonul</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>De la unul la altul în listă</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Alege din listă sau renunță la alegere</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Imagine în direct mai mare, mai mică</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Toată imaginea în direct</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Rotește imaginea în direct cu un sfert</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Rotița mausului</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Mai mare sau mai mică, în jurul cursorului</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Două degete</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Mai mare sau mai mică, între degete</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Tragere</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Mută imaginea în direct mărită</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Copiază ce se vede</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Înapoi dintr-o întrebare sau un mesaj</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Închide programul</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Bara de spațiu</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>ÎN DIRECT</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Se deschide camera. Așteptați...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Nu este acceptat</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera și microfonul nu sunt disponibile. Verificați dacă sunt conectate corect. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Camera nu este disponibilă. Verificați dacă este conectată corect. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Microfonul nu este disponibil. Verificați dacă este conectat corect.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Imagine în direct</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s până la captură  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s până la captură</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Se înregistrează</translation>
    </message>
</context>
<context>
    <name>SelectDeviceDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Please select a device:</source>
        <translation>Alegeți un dispozitiv:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CWaiteMsgDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>Așteptați..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Finalizat</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Nu a reușit.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Se lipește. Așteptați... 
</translation>
    </message>
</context>
<context>
    <name>SaveConfirmDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Do you want to save the Photo / Movie data?</source>
        <translation>Salvați fotografiile și videoclipurile?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Da</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Setări</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Autodeclanșator:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Captură continuă:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>imagini</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Confirmarea imaginii capturate:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rezoluție:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Locul salvării:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Folderul implicit</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Alt folder</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anulare</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Autodeclanșator</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Captură continuă</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>imagini</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Confirmarea imaginii capturate</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rezoluție</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Folderul implicit</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Alt folder</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Specificați locul salvării.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Calea specificată nu este validă.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Locul salvării</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Puteți selecta cel mult 9 elemente.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Mărire</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Înapoi</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>WebcamUtil</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>Spațiul pe disc este insuficient.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Captura se oprește. Eliberați spațiu. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Nu se poate captura nimic cât timp acest dosar este o legătură sau nu este doar al dumneavoastră:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Cameră de documente</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Arătați, fotografiați și filmați ce se află sub cameră</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Caută în:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Dosar:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Alege</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Înapoi</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Înainte</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Dosarul părinte</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Creează un dosar nou</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Dosarul nu a fost găsit.
Verificați dacă numele dosarului este corect.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Calculator</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Renunță</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
