<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name>CPictorelDlg</name>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>लाइव</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Continuous
Capture</source>
        <translation>लगातार
फ़ोटो</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>वीडियो</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>रोकें</translation>
    </message>
    <message>
        <source>List</source>
        <translation>सूची</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>बंद करें</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>रखें</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>फिर से लें</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>चलाएँ</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>विराम</translation>
    </message>
    <message>
        <source>View</source>
        <translation>देखें</translation>
    </message>
    <message>
        <source>Movie /
    Photo</source>
        <translation>वीडियो /
    फ़ोटो</translation>
    </message>
    <message>
        <source>Photo /
    Movie</source>
        <translation>फ़ोटो /
    वीडियो</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>वापस</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>चिपकाएँ</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>लोड करें</translation>
    </message>
    <message>
        <source>Still</source>
        <translation>स्थिर चित्र</translation>
    </message>
    <message>
        <source>/</source>
        <translation>/</translation>
    </message>
    <message>
        <source>Cannot find Video Devices.</source>
        <translation>कोई कैमरा नहीं मिला।</translation>
    </message>
    <message>
        <source>Cannot find Audio Devices.</source>
        <translation>कोई माइक्रोफ़ोन नहीं मिला।</translation>
    </message>
    <message>
        <source>Cannot find Video / Audio Devices.</source>
        <translation>कोई कैमरा या माइक्रोफ़ोन नहीं मिला।</translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>कैमरा उपलब्ध नहीं है। कृपया जाँचें कि वह ठीक से जुड़ा है। </translation>
    </message>
    <message>
        <source>Save failed.</source>
        <translation>सहेजा नहीं जा सका।</translation>
    </message>
    <message>
        <source>File is loading. Please wait...</source>
        <translation>फ़ाइलें लोड हो रही हैं। कृपया प्रतीक्षा करें...</translation>
    </message>
    <message>
        <source>File loaded successfully.</source>
        <translation>फ़ाइलें लोड हो गईं।</translation>
    </message>
    <message>
        <source>Load failed.</source>
        <translation>लोड नहीं किया जा सका।</translation>
    </message>
    <message>
        <source>Load Directory</source>
        <translation>फ़ोल्डर लोड करें</translation>
    </message>
</context>
<context>
    <name>KeyHelp</name>
    <message>
        <source>Keys</source>
        <translation>कुंजियाँ</translation>
    </message>
    <message>
        <source>Shows this, until the next key or touch</source>
        <translation>अगली कुंजी या स्पर्श तक इसे दिखाता है</translation>
    </message>
    <message>
        <source>To the next button</source>
        <translation>अगले बटन पर</translation>
    </message>
    <message>
        <source>Back to the button before</source>
        <translation>पिछले बटन पर वापस</translation>
    </message>
    <message>
        <source>Presses the button</source>
        <translation>बटन दबाता है</translation>
    </message>
    <message>
        <source>From one to the next in the list</source>
        <translation>सूची में एक से दूसरे पर</translation>
    </message>
    <message>
        <source>Chooses in the list, or leaves out again</source>
        <translation>सूची में चुनता है, या चुनाव हटाता है</translation>
    </message>
    <message>
        <source>Live picture larger, smaller</source>
        <translation>लाइव चित्र बड़ा, छोटा</translation>
    </message>
    <message>
        <source>The whole live picture</source>
        <translation>पूरा लाइव चित्र</translation>
    </message>
    <message>
        <source>Turns the live picture by a quarter</source>
        <translation>लाइव चित्र को चौथाई घुमाता है</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>माउस का पहिया</translation>
    </message>
    <message>
        <source>Larger or smaller, around the pointer</source>
        <translation>बड़ा या छोटा, पॉइंटर के आसपास</translation>
    </message>
    <message>
        <source>Two fingers</source>
        <translation>दो उँगलियाँ</translation>
    </message>
    <message>
        <source>Larger or smaller, between the fingers</source>
        <translation>बड़ा या छोटा, उँगलियों के बीच</translation>
    </message>
    <message>
        <source>Drag</source>
        <translation>खींचना</translation>
    </message>
    <message>
        <source>Moves the enlarged live picture</source>
        <translation>बड़े किए गए लाइव चित्र को खिसकाता है</translation>
    </message>
    <message>
        <source>Copies what is shown</source>
        <translation>जो दिख रहा है उसे कॉपी करता है</translation>
    </message>
    <message>
        <source>Goes back from a question or message</source>
        <translation>प्रश्न या संदेश से वापस</translation>
    </message>
    <message>
        <source>Ends the program</source>
        <translation>प्रोग्राम बंद करता है</translation>
    </message>
    <message>
        <source>Space bar</source>
        <translation>स्पेस बार</translation>
    </message>
</context>
<context>
    <name>LiveVideoWidget</name>
    <message>
        <source>LIVE</source>
        <translation>लाइव</translation>
    </message>
    <message>
        <source>The camera is being opened. Please wait...</source>
        <translation>कैमरा खुल रहा है। कृपया प्रतीक्षा करें...</translation>
    </message>
    <message>
        <source>Not Suport</source>
        <translation>समर्थित नहीं है</translation>
    </message>
    <message>
        <source>The video device and the audio device are invalid. Please confirm whether the device is correctly connected. </source>
        <translation>कैमरा और माइक्रोफ़ोन उपलब्ध नहीं हैं। कृपया जाँचें कि वे ठीक से जुड़े हैं। </translation>
    </message>
    <message>
        <source>The video device is invalid. Please confirm whether the device is correctly connected. </source>
        <translation>कैमरा उपलब्ध नहीं है। कृपया जाँचें कि वह ठीक से जुड़ा है। </translation>
    </message>
    <message>
        <source>The audio device is invalid. Please confirm whether the device is correctly connected.</source>
        <translation>माइक्रोफ़ोन उपलब्ध नहीं है। कृपया जाँचें कि वह ठीक से जुड़ा है।</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>लाइव चित्र</translation>
    </message>
</context>
<context>
    <name>TimerWidget</name>
    <message>
        <source>0 second to capture  </source>
        <translation>0 सेकंड में फ़ोटो  </translation>
    </message>
    <message>
        <source> second to capture</source>
        <translation> सेकंड में फ़ोटो</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>रिकॉर्डिंग हो रही है</translation>
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
        <translation>कोई डिवाइस चुनें:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
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
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Please Waite..</source>
        <translation>कृपया प्रतीक्षा करें..</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>पूरा हुआ</translation>
    </message>
    <message>
        <source>Failed.</source>
        <translation>विफल रहा।</translation>
    </message>
    <message>
        <source>Pasting is processed. Please wait... 
</source>
        <translation>चिपकाया जा रहा है। कृपया प्रतीक्षा करें... 
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
        <translation>क्या आप फ़ोटो और वीडियो सहेजना चाहते हैं?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>हाँ</translation>
    </message>
    <message>
        <source>No</source>
        <translation>नहीं</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source>Settings</source>
        <translation>सेटिंग</translation>
    </message>
    <message>
        <source>AutoShooting:</source>
        <translation>सेल्फ़-टाइमर:</translation>
    </message>
    <message>
        <source>sec</source>
        <translation>सेकंड</translation>
    </message>
    <message>
        <source>Continuous shooting:</source>
        <translation>लगातार फ़ोटो:</translation>
    </message>
    <message>
        <source>sheet</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Preview your photo taken:</source>
        <translation>ली गई फ़ोटो की पुष्टि करें:</translation>
    </message>
    <message>
        <source>Resolution:</source>
        <translation>रिज़ॉल्यूशन:</translation>
    </message>
    <message>
        <source>Save Directry:</source>
        <translation>सहेजने की जगह:</translation>
    </message>
    <message>
        <source>Using the standard location</source>
        <translation>डिफ़ॉल्ट फ़ोल्डर का उपयोग करें</translation>
    </message>
    <message>
        <source>Specify a destination</source>
        <translation>दूसरे फ़ोल्डर का उपयोग करें</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>Self Timer</source>
        <translation>सेल्फ़-टाइमर</translation>
    </message>
    <message>
        <source>second</source>
        <translation>सेकंड</translation>
    </message>
    <message>
        <source>Continuous Capture</source>
        <translation>लगातार फ़ोटो</translation>
    </message>
    <message>
        <source>Shots</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Confirm captured image</source>
        <translation>ली गई फ़ोटो की पुष्टि करें</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>रिज़ॉल्यूशन</translation>
    </message>
    <message>
        <source>Use default location</source>
        <translation>डिफ़ॉल्ट फ़ोल्डर का उपयोग करें</translation>
    </message>
    <message>
        <source>Use other location</source>
        <translation>दूसरे फ़ोल्डर का उपयोग करें</translation>
    </message>
    <message>
        <source>Please specify the save location.</source>
        <translation>कृपया सहेजने की जगह बताएँ।</translation>
    </message>
    <message>
        <source>Invalid PATH is specified.</source>
        <translation>दिया गया पथ मान्य नहीं है।</translation>
    </message>
    <message>
        <source>SaveDirectory</source>
        <translation>सहेजने की जगह</translation>
    </message>
</context>
<context>
    <name>PictureListView</name>
    <message>
        <source>You can not select 10 or more.</source>
        <translation>अधिकतम 9 चुने जा सकते हैं।</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>वीडियो</translation>
    </message>
</context>
<context>
    <name>PictureWidget</name>
    <message>
        <source>Photo</source>
        <translation>फ़ोटो</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom</source>
        <comment>spoken</comment>
        <translation>बड़ा करें</translation>
    </message>
    <message>
        <source>Back</source>
        <translatorcomment>Also the name of the button's bitmap: must stay as it is.</translatorcomment>
        <translation>Back</translation>
    </message>
    <message>
        <source>Back</source>
        <comment>spoken</comment>
        <translation>वापस</translation>
    </message>
</context>
<context>
    <name>MovieWidget</name>
    <message>
        <source>Movie</source>
        <translation>वीडियो</translation>
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
        <translation>ठीक है</translation>
    </message>
    <message>
        <source>The disk free space is insufficient.
</source>
        <translation>डिस्क में पर्याप्त जगह नहीं है।
</translation>
    </message>
    <message>
        <source>Taking a picture is discontinued. Please secure the free space. </source>
        <translation>फ़ोटो या वीडियो लेना रोका जा रहा है। कृपया जगह खाली करें। </translation>
    </message>
    <message>
        <source>Nothing can be taken while this folder is a link or is not yours alone:
</source>
        <translation>जब तक यह फ़ोल्डर एक लिंक है या केवल आपका नहीं है, कुछ भी कैप्चर नहीं किया जा सकता:
</translation>
    </message>
</context>
<context>
    <name>MenuEntry</name>
    <message>
        <source>Document Camera</source>
        <translation>डॉक्यूमेंट कैमरा</translation>
    </message>
    <message>
        <source>Show, photograph and film what lies under the camera</source>
        <translation>कैमरे के नीचे रखी चीज़ दिखाएँ, उसकी फ़ोटो लें और वीडियो बनाएँ</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Look in:</source>
        <translation>यहाँ खोजें:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>फ़ोल्डर:</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>चुनें</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>पीछे</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>आगे</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>ऊपर का फ़ोल्डर</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>नया फ़ोल्डर बनाएँ</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
फ़ोल्डर नहीं मिला।
कृपया जाँचें कि फ़ोल्डर का नाम सही है।</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Computer</source>
        <translation>कंप्यूटर</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Cancel</source>
        <translation>रद्द करें</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ठीक है</translation>
    </message>
</context>
</TS>
