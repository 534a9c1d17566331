<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Živě</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Sériové
snímky</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Seznam</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Ponechat</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Znovu</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauza</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Zobrazit</translation>
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
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Vložit</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Načíst</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Statický obraz</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Kamera nebyla nalezena.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Mikrofon nebyl nalezen.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Kamera ani mikrofon nebyly nalezeny.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera není dostupná. Zkontrolujte, zda je správně připojena. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Uložení se nezdařilo.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Soubory se načítají. Čekejte prosím...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Soubory byly načteny.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Načtení se nezdařilo.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Načíst složku</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Ukáže tento přehled do další klávesy nebo dotyku</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Na další tlačítko</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Zpět na předchozí tlačítko</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Stiskne tlačítko</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>V seznamu z položky na položku</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>V seznamu vybere, nebo výběr zruší</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Živý obraz větší, menší</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Celý živý obraz</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Otočí živý obraz o čtvrt otáčky</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Kolečko myši</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Větší nebo menší kolem ukazatele</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Dva prsty</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Větší nebo menší mezi prsty</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Tažení</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Posouvá zvětšený živý obraz</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Zkopíruje, co je vidět</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Zpět z dotazu nebo zprávy</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Ukončí program</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Mezerník</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>ŽIVĚ</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Kamera se spouští. Čekejte prosím...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Není podporováno</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera a mikrofon nejsou dostupné. Zkontrolujte, zda jsou správně připojeny. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Kamera není dostupná. Zkontrolujte, zda je správně připojena. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Mikrofon není dostupný. Zkontrolujte, zda je správně připojen.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Živý obraz</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 s do pořízení snímku  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> s do pořízení snímku</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nahrává se</translation>
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
        <translation>Vyberte zařízení:</translation>
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
        <translation>Čekejte prosím..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Hotovo</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Nezdařilo se.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Probíhá vkládání. Čekejte prosím... 
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
        <translation>Chcete uložit fotky a videa?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Samospoušť:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Sériové snímky:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>ks</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Potvrzovat pořízené snímky:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Rozlišení:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Místo uložení:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Použít výchozí složku</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Použít jinou složku</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Samospoušť</translation>
    </message>
    <message>
        <source>second</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Sériové snímky</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>ks</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Potvrzovat pořízené snímky</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Použít výchozí složku</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Použít jinou složku</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Zadejte místo uložení.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Zadaná cesta není platná.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Místo uložení</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Lze vybrat nejvýše 9 položek.</translation>
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
        <translation>Zvětšit</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Zpět</translation>
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
        <translation>Na disku není dost místa.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Snímání bylo ukončeno. Uvolněte místo na disku. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Nelze nic pořídit, dokud je tato složka odkazem nebo nepatří jen vám:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Dokumentová kamera</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Ukazujte, foťte a natáčejte, co leží pod kamerou</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Kde hledat:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Složka:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zpět</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vpřed</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Nadřazená složka</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Vytvořit novou složku</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Složka nebyla nalezena.
Zkontrolujte prosím, zda je její název správný.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Počítač</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
