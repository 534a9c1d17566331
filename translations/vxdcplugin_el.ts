<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="el" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Ζωντανά</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Φωτογραφία</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>Συνεχής
λήψη</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Βίντεο</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Διακοπή</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Λίστα</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Έξοδος</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Διατήρηση</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Επανάληψη</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Έναρξη</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Παύση</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Προβολή</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>Βίντεο /
    Φωτό</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>Φωτό /
    Βίντεο</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Επικόλληση</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Φόρτωση</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>Στατική εικόνα</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>Δεν βρέθηκε κάμερα.</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>Δεν βρέθηκε μικρόφωνο.</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>Δεν βρέθηκε κάμερα ούτε μικρόφωνο.</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα δεν είναι διαθέσιμη. Ελέγξτε αν είναι σωστά συνδεδεμένη. </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>Η αποθήκευση απέτυχε.</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>Φόρτωση αρχείων. Περιμένετε...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>Τα αρχεία φορτώθηκαν.</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>Η φόρτωση απέτυχε.</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>Φόρτωση φακέλου</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>Πλήκτρα</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>Δείχνει αυτά, ως το επόμενο πλήκτρο ή άγγιγμα</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>Στο επόμενο κουμπί</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>Πίσω στο προηγούμενο κουμπί</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>Πατά το κουμπί</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>Από το ένα στο επόμενο στη λίστα</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>Επιλέγει στη λίστα ή αφαιρεί ξανά</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>Ζωντανή εικόνα μεγαλύτερη, μικρότερη</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>Ολόκληρη η ζωντανή εικόνα</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>Στρέφει τη ζωντανή εικόνα κατά ένα τέταρτο</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>Ροδέλα ποντικιού</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>Μεγαλύτερη ή μικρότερη, γύρω από τον δείκτη</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>Δύο δάχτυλα</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>Μεγαλύτερη ή μικρότερη, ανάμεσα στα δάχτυλα</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>Σύρσιμο</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>Μετακινεί τη μεγεθυμένη ζωντανή εικόνα</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>Αντιγράφει ό,τι φαίνεται</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>Πίσω από μια ερώτηση ή ένα μήνυμα</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>Κλείνει το πρόγραμμα</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>Πλήκτρο διαστήματος</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>ΖΩΝΤΑΝΑ</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>Άνοιγμα κάμερας. Περιμένετε...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>Δεν υποστηρίζεται</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα και το μικρόφωνο δεν είναι διαθέσιμα. Ελέγξτε αν είναι σωστά συνδεδεμένα. </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>Η κάμερα δεν είναι διαθέσιμη. Ελέγξτε αν είναι σωστά συνδεδεμένη. </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>Το μικρόφωνο δεν είναι διαθέσιμο. Ελέγξτε αν είναι σωστά συνδεδεμένο.</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Ζωντανή εικόνα</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 δευτ. μέχρι τη λήψη  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> δευτ. μέχρι τη λήψη</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Γίνεται εγγραφή</translation>
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
        <translation>Επιλέξτε συσκευή:</translation>
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
        <translation>Περιμένετε..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Ολοκληρώθηκε</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>Απέτυχε.</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>Γίνεται επικόλληση. Περιμένετε... 
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
        <translation>Να αποθηκευτούν οι φωτογραφίες και τα βίντεο;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ναι</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Όχι</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>Ρυθμίσεις</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>Χρονοδιακόπτης:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>δευτ.</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>Συνεχής λήψη:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>εικόνες</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>Επιβεβαίωση της εικόνας που λήφθηκε:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>Ανάλυση:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>Θέση αποθήκευσης:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>Χρήση του προεπιλεγμένου φακέλου</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>Χρήση άλλου φακέλου</translation>
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
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>Χρονοδιακόπτης</translation>
    </message>
    <message>
        <source>second</source>
        <translation>δευτ.</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>Συνεχής λήψη</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>εικόνες</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>Επιβεβαίωση της εικόνας που λήφθηκε</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Ανάλυση</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>Χρήση του προεπιλεγμένου φακέλου</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>Χρήση άλλου φακέλου</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>Καθορίστε τη θέση αποθήκευσης.</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>Η διαδρομή που καθορίστηκε δεν είναι έγκυρη.</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>Θέση αποθήκευσης</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>Μπορείτε να επιλέξετε έως 9.</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Φωτογραφία</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Βίντεο</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>Φωτογραφία</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>Μεγέθυνση</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>Πίσω</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>Βίντεο</translation>
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
        <translation>Ο χώρος στον δίσκο δεν επαρκεί.
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>Η λήψη διακόπτεται. Ελευθερώστε χώρο. </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>Δεν είναι δυνατή καμία λήψη όσο αυτός ο φάκελος είναι σύνδεσμος ή δεν είναι αποκλειστικά δικός σας:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>Κάμερα εγγράφων</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>Προβολή, φωτογράφιση και βιντεοσκόπηση όσων βρίσκονται κάτω από την κάμερα</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>Αναζήτηση σε:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Φάκελος:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>Επιλογή</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Πίσω</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Εμπρός</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Γονικός φάκελος</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Δημιουργία νέου φακέλου</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Ο φάκελος δεν βρέθηκε.
Ελέγξτε αν το όνομα του φακέλου είναι σωστό.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>Υπολογιστής</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>Άκυρο</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
