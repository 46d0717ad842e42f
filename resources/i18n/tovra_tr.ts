<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>AccountPage</name>
    <message>
        <source>Enter account and password.</source>
        <translation>Hesap ve parolayı girin.</translation>
    </message>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Hesap işlemi tamamlanamadı</translation>
    </message>
</context>
<context>
    <name>AccountSignInCard</name>
    <message>
        <source>Remember this account</source>
        <translation>Bu hesabı hatırla</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that signs in to the Tovra account</extracomment>
        <translation>Giriş Yap</translation>
    </message>
    <message>
        <source>Sign in</source>
        <translation>Giriş yap</translation>
    </message>
    <message>
        <source>Use your Tovra account to connect and sync available locations.</source>
        <translation>Bağlanmak ve kullanılabilir konumları eşitlemek için Tovra hesabınızı kullanın.</translation>
    </message>
    <message>
        <source>Email or user ID</source>
        <translation>E-posta veya kullanıcı kimliği</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>Sign Up</source>
        <extracomment>Button that opens the page to create a Tovra account</extracomment>
        <translation>Kaydol</translation>
    </message>
    <message>
        <source>Forgot password?</source>
        <extracomment>Button (shown as a link) that opens the password reset page</extracomment>
        <translation>Parolanızı mı unuttunuz?</translation>
    </message>
    <message>
        <source>Signing in...</source>
        <extracomment>Button while the sign-in runs</extracomment>
        <translation>Giriş yapılıyor...</translation>
    </message>
</context>
<context>
    <name>AccountSummaryCard</name>
    <message>
        <source>Renew</source>
        <extracomment>Button that opens the page to renew the plan</extracomment>
        <translation>Planı yenile</translation>
    </message>
    <message>
        <source>Sign Out</source>
        <extracomment>Button that signs out of the Tovra account</extracomment>
        <translation>Çıkış Yap</translation>
    </message>
    <message>
        <source>Signed in</source>
        <translation>Giriş yapıldı</translation>
    </message>
    <message>
        <source>User ID: %1</source>
        <translation>Kullanıcı kimliği: %1</translation>
    </message>
    <message>
        <source>Plan: %1</source>
        <translation>Plan: %1</translation>
    </message>
    <message>
        <source>Days left: %1</source>
        <translation>Kalan gün: %1</translation>
    </message>
    <message>
        <source>Max simultaneous devices: %1</source>
        <translation>En fazla eşzamanlı cihaz: %1</translation>
    </message>
    <message>
        <source>Signing out...</source>
        <extracomment>Button while the sign-out runs</extracomment>
        <translation>Çıkış yapılıyor...</translation>
    </message>
    <message>
        <source>Opening…</source>
        <extracomment>Button while the renewal page opens</extracomment>
        <translation>Açılıyor…</translation>
    </message>
</context>
<context>
    <name>AppSection</name>
    <message>
        <source>App</source>
        <translation>Uygulama</translation>
    </message>
    <message>
        <source>Change…</source>
        <extracomment>Button that opens the language picker</extracomment>
        <translation>Değiştir…</translation>
    </message>
    <message>
        <source>Launch at login</source>
        <translation>Oturum açılışında başlat</translation>
    </message>
    <message>
        <source>Start Tovra in the tray when you sign in to the desktop.</source>
        <translation>Masaüstünde oturum açtığınızda Tovra&apos;yı sistem tepsisinde başlatır.</translation>
    </message>
    <message>
        <source>Show window at launch</source>
        <translation>Başlangıçta pencereyi göster</translation>
    </message>
    <message>
        <source>Open this window when Tovra starts; otherwise only the tray icon appears.</source>
        <translation>Tovra başladığında bu pencereyi açar; aksi halde yalnızca tepsi simgesi görünür.</translation>
    </message>
    <message>
        <source>Same as desktop</source>
        <translation>Masaüstüyle aynı</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Light, dark, or following the desktop.</source>
        <translation>Açık, koyu veya masaüstüne uygun.</translation>
    </message>
    <message>
        <source>Change language</source>
        <translation>Dili değiştir</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>%1, following the desktop</source>
        <translation>%1, masaüstüne uygun</translation>
    </message>
    <message>
        <source>Could not update login startup</source>
        <translation>Oturum açılışında başlatma ayarı güncellenemedi</translation>
    </message>
    <message>
        <source>Show…</source>
        <extracomment>Button that opens the list of keyboard shortcuts</extracomment>
        <translation>Göster…</translation>
    </message>
    <message>
        <source>Show keyboard shortcuts</source>
        <translation>Klavye kısayollarını göster</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Klavye kısayolları</translation>
    </message>
    <message>
        <source>Every key that works in this window.</source>
        <translation>Bu pencerede çalışan tüm tuşlar.</translation>
    </message>
</context>
<context>
    <name>CatalogTreeModel</name>
    <message>
        <source>Location %1</source>
        <translation>Konum %1</translation>
    </message>
    <message>
        <source>Other locations</source>
        <translation>Diğer konumlar</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>locations: %1</source>
        <translation>konum sayısı: %1</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>latency not measured</source>
        <translation>gecikme ölçülmedi</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favori</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Said of a location in the list: it is the one the VPN is connected to now (not connecting)</extracomment>
        <translation>bağlı</translation>
    </message>
    <message>
        <source>not in your plan</source>
        <translation>planınıza dahil değil</translation>
    </message>
    <message>
        <source>Your plan does not include this location. Upgrade to use it.</source>
        <translation>Planınız bu konumu içermiyor. Kullanmak için planınızı yükseltin.</translation>
    </message>
    <message>
        <source>This list may be out of date.</source>
        <translation>Bu liste güncel olmayabilir.</translation>
    </message>
    <message>
        <source>Locked: needs the %1 plan. Upgrade to use it.</source>
        <translation>Kilitli: %1 planı gerekir. Kullanmak için planınızı yükseltin.</translation>
    </message>
</context>
<context>
    <name>ConfirmDialog</name>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ConnectionSection</name>
    <message>
        <source>Connection</source>
        <translation>Bağlantı</translation>
    </message>
    <message>
        <source>API URL</source>
        <translation>API adresi</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>Button that saves the API URL typed in the field</extracomment>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Reset to default</source>
        <extracomment>Button that puts the API URL back to the default address</extracomment>
        <translation>Varsayılana sıfırla</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>Auto connect choice: connect to nothing when the service starts</extracomment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Son konum</translation>
    </message>
    <message>
        <source>Fastest location</source>
        <translation>En hızlı konum</translation>
    </message>
    <message>
        <source>Auto connect</source>
        <translation>Otomatik bağlan</translation>
    </message>
    <message>
        <source>What the Tovra service connects to when it starts.</source>
        <translation>Tovra hizmeti başladığında neye bağlanacağı.</translation>
    </message>
    <message>
        <source>Save API URL</source>
        <translation>API adresini kaydet</translation>
    </message>
    <message>
        <source>Reset API URL to default</source>
        <translation>API adresini varsayılana sıfırla</translation>
    </message>
    <message>
        <source>Where the Tovra service reaches the account and location servers. Change it only when support asks you to.</source>
        <translation>Tovra hizmetinin hesap ve konum sunucularına ulaştığı adres. Yalnızca destek ekibi isterse değiştirin.</translation>
    </message>
    <message>
        <source>Validation: %1</source>
        <translation>Doğrulama: %1</translation>
    </message>
    <message>
        <source>Validated by the Tovra service</source>
        <translation>Tovra hizmeti tarafından doğrulandı</translation>
    </message>
    <message>
        <source>Not validated: the Tovra service saved this address but could not confirm it</source>
        <translation>Doğrulanmadı: Tovra hizmeti bu adresi kaydetti ancak doğrulayamadı</translation>
    </message>
</context>
<context>
    <name>Continents</name>
    <message>
        <source>Africa</source>
        <translation>Afrika</translation>
    </message>
    <message>
        <source>Antarctica</source>
        <translation>Antarktika</translation>
    </message>
    <message>
        <source>Asia</source>
        <translation>Asya</translation>
    </message>
    <message>
        <source>Europe</source>
        <translation>Avrupa</translation>
    </message>
    <message>
        <source>Middle East</source>
        <translation>Orta Doğu</translation>
    </message>
    <message>
        <source>North America</source>
        <translation>Kuzey Amerika</translation>
    </message>
    <message>
        <source>Oceania</source>
        <translation>Okyanusya</translation>
    </message>
    <message>
        <source>South America</source>
        <translation>Güney Amerika</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Tovra daemon is not running.</source>
        <translation>Tovra hizmeti çalışmıyor.</translation>
    </message>
    <message>
        <source>Tovra daemon access denied. Add this user to the tovracli group, then sign out and back in.</source>
        <translation>Tovra hizmetine erişim reddedildi. Bu kullanıcıyı tovracli grubuna ekleyin, ardından oturumu kapatıp yeniden açın.</translation>
    </message>
    <message>
        <source>Could not connect to Tovra daemon.</source>
        <translation>Tovra hizmetine bağlanılamadı.</translation>
    </message>
    <message>
        <source>Tovra daemon is too old for Kill Switch modes. Update Tovra.</source>
        <translation>Tovra hizmeti Kill Switch modları için çok eski. Tovra&apos;yı güncelleyin.</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Afghanistan</source>
        <translation>Afganistan</translation>
    </message>
    <message>
        <source>Land Islands</source>
        <translation>Åland Adaları</translation>
    </message>
    <message>
        <source>Albania</source>
        <translation>Arnavutluk</translation>
    </message>
    <message>
        <source>Algeria</source>
        <translation>Cezayir</translation>
    </message>
    <message>
        <source>American Samoa</source>
        <translation>Amerikan Samoası</translation>
    </message>
    <message>
        <source>Andorra</source>
        <translation>Andorra</translation>
    </message>
    <message>
        <source>Angola</source>
        <translation>Angola</translation>
    </message>
    <message>
        <source>Anguilla</source>
        <translation>Anguilla</translation>
    </message>
    <message>
        <source>Antigua and Barbuda</source>
        <translation>Antigua ve Barbuda</translation>
    </message>
    <message>
        <source>Argentina</source>
        <translation>Arjantin</translation>
    </message>
    <message>
        <source>Armenia</source>
        <translation>Ermenistan</translation>
    </message>
    <message>
        <source>Aruba</source>
        <translation>Aruba</translation>
    </message>
    <message>
        <source>Australia</source>
        <translation>Avustralya</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>Avusturya</translation>
    </message>
    <message>
        <source>Azerbaijan</source>
        <translation>Azerbaycan</translation>
    </message>
    <message>
        <source>Bahamas</source>
        <translation>Bahamalar</translation>
    </message>
    <message>
        <source>Bahrain</source>
        <translation>Bahreyn</translation>
    </message>
    <message>
        <source>Bangladesh</source>
        <translation>Bangladeş</translation>
    </message>
    <message>
        <source>Barbados</source>
        <translation>Barbados</translation>
    </message>
    <message>
        <source>Belarus</source>
        <translation>Belarus</translation>
    </message>
    <message>
        <source>Belgium</source>
        <translation>Belçika</translation>
    </message>
    <message>
        <source>Belize</source>
        <translation>Belize</translation>
    </message>
    <message>
        <source>Benin</source>
        <translation>Benin</translation>
    </message>
    <message>
        <source>Bermuda</source>
        <translation>Bermuda</translation>
    </message>
    <message>
        <source>Bhutan</source>
        <translation>Bhutan</translation>
    </message>
    <message>
        <source>Bolivia</source>
        <translation>Bolivya</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>Bosna-Hersek</translation>
    </message>
    <message>
        <source>Botswana</source>
        <translation>Botsvana</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>Brezilya</translation>
    </message>
    <message>
        <source>Brunei Darussalam</source>
        <translation>Brunei Krallığı</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>Bulgaristan</translation>
    </message>
    <message>
        <source>Burkina Faso</source>
        <translation>Burkina Faso</translation>
    </message>
    <message>
        <source>Burundi</source>
        <translation>Burundi</translation>
    </message>
    <message>
        <source>Cambodia</source>
        <translation>Kamboçya</translation>
    </message>
    <message>
        <source>Cameroon</source>
        <translation>Kamerun</translation>
    </message>
    <message>
        <source>Canada</source>
        <translation>Kanada</translation>
    </message>
    <message>
        <source>Cape Verde</source>
        <translation>Yeşil Burun Adaları</translation>
    </message>
    <message>
        <source>Cayman Islands</source>
        <translation>Cayman Adaları</translation>
    </message>
    <message>
        <source>Central African Republic</source>
        <translation>Orta Afrika Cumhuriyeti</translation>
    </message>
    <message>
        <source>Chad</source>
        <translation>Çad</translation>
    </message>
    <message>
        <source>Chile</source>
        <translation>Şili</translation>
    </message>
    <message>
        <source>China</source>
        <translation>Çin</translation>
    </message>
    <message>
        <source>Colombia</source>
        <translation>Kolombiya</translation>
    </message>
    <message>
        <source>Comoros</source>
        <translation>Komorlar</translation>
    </message>
    <message>
        <source>Congo</source>
        <translation>Kongo</translation>
    </message>
    <message>
        <source>Congo, The Democratic Republic of the</source>
        <translation>Kongo Demokratik Cumhuriyeti</translation>
    </message>
    <message>
        <source>Cook Islands</source>
        <translation>Cook Adaları</translation>
    </message>
    <message>
        <source>Costa Rica</source>
        <translation>Kosta Rika</translation>
    </message>
    <message>
        <source>Cote D&apos;Ivoire</source>
        <translation>Fildişi Sahili</translation>
    </message>
    <message>
        <source>Croatia</source>
        <translation>Hırvatistan</translation>
    </message>
    <message>
        <source>Cuba</source>
        <translation>Küba</translation>
    </message>
    <message>
        <source>Cyprus</source>
        <translation>Kıbrıs</translation>
    </message>
    <message>
        <source>Czech Republic</source>
        <translation>Çekya</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>Danimarka</translation>
    </message>
    <message>
        <source>Djibouti</source>
        <translation>Cibuti</translation>
    </message>
    <message>
        <source>Dominica</source>
        <translation>Dominika</translation>
    </message>
    <message>
        <source>Dominican Republic</source>
        <translation>Dominik Cumhuriyeti</translation>
    </message>
    <message>
        <source>Ecuador</source>
        <translation>Ekvador</translation>
    </message>
    <message>
        <source>Egypt</source>
        <translation>Mısır</translation>
    </message>
    <message>
        <source>El Salvador</source>
        <translation>El Salvador</translation>
    </message>
    <message>
        <source>Equatorial Guinea</source>
        <translation>Ekvator Ginesi</translation>
    </message>
    <message>
        <source>Eritrea</source>
        <translation>Eritre</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>Estonya</translation>
    </message>
    <message>
        <source>Ethiopia</source>
        <translation>Etiyopya</translation>
    </message>
    <message>
        <source>Falkland Islands (Malvinas)</source>
        <translation>Falkland Adaları (Malvinas)</translation>
    </message>
    <message>
        <source>Faroe Islands</source>
        <translation>Faroe Adaları</translation>
    </message>
    <message>
        <source>Fiji</source>
        <translation>Fiji</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>Finlandiya</translation>
    </message>
    <message>
        <source>France</source>
        <translation>Fransa</translation>
    </message>
    <message>
        <source>French Guiana</source>
        <translation>Fransız Guyanası</translation>
    </message>
    <message>
        <source>French Polynesia</source>
        <translation>Fransız Polinezyası</translation>
    </message>
    <message>
        <source>Gabon</source>
        <translation>Gabon</translation>
    </message>
    <message>
        <source>Gambia</source>
        <translation>Gambiya</translation>
    </message>
    <message>
        <source>Georgia</source>
        <translation>Gürcistan</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>Almanya</translation>
    </message>
    <message>
        <source>Ghana</source>
        <translation>Gana</translation>
    </message>
    <message>
        <source>Gibraltar</source>
        <translation>Cebelitarık</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>Yunanistan</translation>
    </message>
    <message>
        <source>Greenland</source>
        <translation>Grönland</translation>
    </message>
    <message>
        <source>Grenada</source>
        <translation>Grenada</translation>
    </message>
    <message>
        <source>Guadeloupe</source>
        <translation>Guadeloupe</translation>
    </message>
    <message>
        <source>Guam</source>
        <translation>Guam</translation>
    </message>
    <message>
        <source>Guatemala</source>
        <translation>Guatemala</translation>
    </message>
    <message>
        <source>Guernsey</source>
        <translation>Guernsey</translation>
    </message>
    <message>
        <source>Guinea</source>
        <translation>Gine</translation>
    </message>
    <message>
        <source>Guinea-Bissau</source>
        <translation>Gine-Bissau</translation>
    </message>
    <message>
        <source>Guyana</source>
        <translation>Guyana</translation>
    </message>
    <message>
        <source>Haiti</source>
        <translation>Haiti</translation>
    </message>
    <message>
        <source>Holy See (Vatican City State)</source>
        <translation>Holy See (Vatikan Şehir Devleti)</translation>
    </message>
    <message>
        <source>Honduras</source>
        <translation>Honduras</translation>
    </message>
    <message>
        <source>Hong Kong (China)</source>
        <translation>Hong Kong</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>Macaristan</translation>
    </message>
    <message>
        <source>Iceland</source>
        <translation>İzlanda</translation>
    </message>
    <message>
        <source>India</source>
        <translation>Hindistan</translation>
    </message>
    <message>
        <source>Indonesia</source>
        <translation>Endonezya</translation>
    </message>
    <message>
        <source>Iran, Islamic Republic of</source>
        <translation>İran</translation>
    </message>
    <message>
        <source>Iraq</source>
        <translation>Irak</translation>
    </message>
    <message>
        <source>Ireland</source>
        <translation>İrlanda</translation>
    </message>
    <message>
        <source>Isle of Man</source>
        <translation>Man Adası</translation>
    </message>
    <message>
        <source>Israel</source>
        <translation>İsrail</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>İtalya</translation>
    </message>
    <message>
        <source>Jamaica</source>
        <translation>Jamaika</translation>
    </message>
    <message>
        <source>Japan</source>
        <translation>Japonya</translation>
    </message>
    <message>
        <source>Jersey</source>
        <translation>Jersey</translation>
    </message>
    <message>
        <source>Jordan</source>
        <translation>Ürdün</translation>
    </message>
    <message>
        <source>Kazakhstan</source>
        <translation>Kazakistan</translation>
    </message>
    <message>
        <source>Kenya</source>
        <translation>Kenya</translation>
    </message>
    <message>
        <source>Kiribati</source>
        <translation>Kiribati</translation>
    </message>
    <message>
        <source>Korea, Democratic People&apos;S Republic of</source>
        <translation>Kuzey Kore</translation>
    </message>
    <message>
        <source>Korea, Republic of</source>
        <translation>Güney Kore</translation>
    </message>
    <message>
        <source>Kuwait</source>
        <translation>Kuveyt</translation>
    </message>
    <message>
        <source>Kyrgyzstan</source>
        <translation>Kırgızistan</translation>
    </message>
    <message>
        <source>Lao People&apos;S Democratic Republic</source>
        <translation>Laos</translation>
    </message>
    <message>
        <source>Latvia</source>
        <translation>Letonya</translation>
    </message>
    <message>
        <source>Lebanon</source>
        <translation>Lübnan</translation>
    </message>
    <message>
        <source>Lesotho</source>
        <translation>Lesoto</translation>
    </message>
    <message>
        <source>Liberia</source>
        <translation>Liberya</translation>
    </message>
    <message>
        <source>Libyan Arab Jamahiriya</source>
        <translation>Libya</translation>
    </message>
    <message>
        <source>Liechtenstein</source>
        <translation>Lihtenştayn</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>Litvanya</translation>
    </message>
    <message>
        <source>Luxembourg</source>
        <translation>Lüksemburg</translation>
    </message>
    <message>
        <source>Macao (China)</source>
        <translation>Makao</translation>
    </message>
    <message>
        <source>Macedonia, The Former Yugoslav Republic of</source>
        <translation>Kuzey Makedonya</translation>
    </message>
    <message>
        <source>Madagascar</source>
        <translation>Madagaskar</translation>
    </message>
    <message>
        <source>Malawi</source>
        <translation>Malavi</translation>
    </message>
    <message>
        <source>Malaysia</source>
        <translation>Malezya</translation>
    </message>
    <message>
        <source>Maldives</source>
        <translation>Maldivler</translation>
    </message>
    <message>
        <source>Mali</source>
        <translation>Mali</translation>
    </message>
    <message>
        <source>Malta</source>
        <translation>Malta</translation>
    </message>
    <message>
        <source>Marshall Islands</source>
        <translation>Marşal Adaları</translation>
    </message>
    <message>
        <source>Martinique</source>
        <translation>Martinique</translation>
    </message>
    <message>
        <source>Mauritania</source>
        <translation>Moritanya</translation>
    </message>
    <message>
        <source>Mauritius</source>
        <translation>Mauritius</translation>
    </message>
    <message>
        <source>Mayotte</source>
        <translation>Mayotte</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>Meksika</translation>
    </message>
    <message>
        <source>Micronesia, Federated States of</source>
        <translation>Mikronezya Federe Devletleri</translation>
    </message>
    <message>
        <source>Moldova, Republic of</source>
        <translation>Moldova</translation>
    </message>
    <message>
        <source>Monaco</source>
        <translation>Monako</translation>
    </message>
    <message>
        <source>Mongolia</source>
        <translation>Moğolistan</translation>
    </message>
    <message>
        <source>Montenegro</source>
        <translation>Karadağ</translation>
    </message>
    <message>
        <source>Montserrat</source>
        <translation>Montserrat</translation>
    </message>
    <message>
        <source>Morocco</source>
        <translation>Fas</translation>
    </message>
    <message>
        <source>Mozambique</source>
        <translation>Mozambik</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Myanmar</translation>
    </message>
    <message>
        <source>Namibia</source>
        <translation>Namibya</translation>
    </message>
    <message>
        <source>Nauru</source>
        <translation>Nauru</translation>
    </message>
    <message>
        <source>Nepal</source>
        <translation>Nepal</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>Hollanda</translation>
    </message>
    <message>
        <source>New Caledonia</source>
        <translation>Yeni Kaledonya</translation>
    </message>
    <message>
        <source>New Zealand</source>
        <translation>Yeni Zelanda</translation>
    </message>
    <message>
        <source>Nicaragua</source>
        <translation>Nikaragua</translation>
    </message>
    <message>
        <source>Niger</source>
        <translation>Nijer</translation>
    </message>
    <message>
        <source>Nigeria</source>
        <translation>Nijerya</translation>
    </message>
    <message>
        <source>Niue</source>
        <translation>Niue</translation>
    </message>
    <message>
        <source>Norfolk Island</source>
        <translation>Norfolk Adası</translation>
    </message>
    <message>
        <source>Northern Mariana Islands</source>
        <translation>Kuzey Mariana Adaları</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>Norveç</translation>
    </message>
    <message>
        <source>Oman</source>
        <translation>Umman</translation>
    </message>
    <message>
        <source>Pakistan</source>
        <translation>Pakistan</translation>
    </message>
    <message>
        <source>Palau</source>
        <translation>Palau</translation>
    </message>
    <message>
        <source>Palestinian Territory, Occupied</source>
        <translation>Filistin Devleti</translation>
    </message>
    <message>
        <source>Panama</source>
        <translation>Panama</translation>
    </message>
    <message>
        <source>Papua New Guinea</source>
        <translation>Papua Yeni Gine</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>Paraguay</translation>
    </message>
    <message>
        <source>Peru</source>
        <translation>Peru</translation>
    </message>
    <message>
        <source>Philippines</source>
        <translation>Filipinler</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>Polonya</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>Portekiz</translation>
    </message>
    <message>
        <source>Puerto Rico</source>
        <translation>Porto Riko</translation>
    </message>
    <message>
        <source>Qatar</source>
        <translation>Katar</translation>
    </message>
    <message>
        <source>Reunion</source>
        <translation>Réunion</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>Romanya</translation>
    </message>
    <message>
        <source>Russian Federation</source>
        <translation>Rusya Federasyonu</translation>
    </message>
    <message>
        <source>Rwanda</source>
        <translation>Ruanda</translation>
    </message>
    <message>
        <source>Saint Helena</source>
        <translation>Saint Helena, Ascension ve Tristan da Cunha</translation>
    </message>
    <message>
        <source>Saint Kitts and Nevis</source>
        <translation>Saint Kitts ve Nevis</translation>
    </message>
    <message>
        <source>Saint Lucia</source>
        <translation>Saint Lucia</translation>
    </message>
    <message>
        <source>Saint Pierre and Miquelon</source>
        <translation>Saint Pierre ve Miquelon</translation>
    </message>
    <message>
        <source>Saint Vincent and the Grenadines</source>
        <translation>Saint Vincent ve Grenadinler</translation>
    </message>
    <message>
        <source>Samoa</source>
        <translation>Samoa</translation>
    </message>
    <message>
        <source>San Marino</source>
        <translation>San Marino</translation>
    </message>
    <message>
        <source>Sao Tome and Principe</source>
        <translation>Sao Tome ve Principe</translation>
    </message>
    <message>
        <source>Saudi Arabia</source>
        <translation>Suudi Arabistan</translation>
    </message>
    <message>
        <source>Senegal</source>
        <translation>Senegal</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>Sırbistan</translation>
    </message>
    <message>
        <source>Seychelles</source>
        <translation>Seyşeller</translation>
    </message>
    <message>
        <source>Sierra Leone</source>
        <translation>Sierra Leone</translation>
    </message>
    <message>
        <source>Singapore</source>
        <translation>Singapur</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>Slovakya</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>Slovenya</translation>
    </message>
    <message>
        <source>Solomon Islands</source>
        <translation>Solomon Adaları</translation>
    </message>
    <message>
        <source>Somalia</source>
        <translation>Somali</translation>
    </message>
    <message>
        <source>South Africa</source>
        <translation>Güney Afrika</translation>
    </message>
    <message>
        <source>South Sudan</source>
        <translation>Güney Sudan</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>İspanya</translation>
    </message>
    <message>
        <source>Sri Lanka</source>
        <translation>Sri Lanka</translation>
    </message>
    <message>
        <source>Sudan</source>
        <translation>Sudan</translation>
    </message>
    <message>
        <source>Suriname</source>
        <translation>Surinam</translation>
    </message>
    <message>
        <source>Swaziland</source>
        <translation>Eswatini</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>İsveç</translation>
    </message>
    <message>
        <source>Switzerland</source>
        <translation>İsviçre</translation>
    </message>
    <message>
        <source>Syrian Arab Republic</source>
        <translation>Suriye</translation>
    </message>
    <message>
        <source>Taiwan (China)</source>
        <translation>Tayvan</translation>
    </message>
    <message>
        <source>Tajikistan</source>
        <translation>Tacikistan</translation>
    </message>
    <message>
        <source>Tanzania, United Republic of</source>
        <translation>Tanzanya</translation>
    </message>
    <message>
        <source>Thailand</source>
        <translation>Tayland</translation>
    </message>
    <message>
        <source>Timor-Leste</source>
        <translation>Timor-Leste</translation>
    </message>
    <message>
        <source>Togo</source>
        <translation>Togo</translation>
    </message>
    <message>
        <source>Tokelau</source>
        <translation>Tokelau</translation>
    </message>
    <message>
        <source>Tonga</source>
        <translation>Tonga</translation>
    </message>
    <message>
        <source>Trinidad and Tobago</source>
        <translation>Trinidad ve Tobago</translation>
    </message>
    <message>
        <source>Tunisia</source>
        <translation>Tunus</translation>
    </message>
    <message>
        <source>Turkey</source>
        <translation>Türkiye</translation>
    </message>
    <message>
        <source>Turkmenistan</source>
        <translation>Türkmenistan</translation>
    </message>
    <message>
        <source>Turks and Caicos Islands</source>
        <translation>Turks ve Caicos Adaları</translation>
    </message>
    <message>
        <source>Tuvalu</source>
        <translation>Tuvalu</translation>
    </message>
    <message>
        <source>Uganda</source>
        <translation>Uganda</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>Ukrayna</translation>
    </message>
    <message>
        <source>United Arab Emirates</source>
        <translation>Birleşik Arap Emirlikleri</translation>
    </message>
    <message>
        <source>United Kingdom</source>
        <translation>Birleşik Krallık</translation>
    </message>
    <message>
        <source>United States</source>
        <translation>Amerika Birleşik Devletleri</translation>
    </message>
    <message>
        <source>Uruguay</source>
        <translation>Uruguay</translation>
    </message>
    <message>
        <source>Uzbekistan</source>
        <translation>Özbekistan</translation>
    </message>
    <message>
        <source>Vanuatu</source>
        <translation>Vanuatu</translation>
    </message>
    <message>
        <source>Venezuela</source>
        <translation>Venezuela</translation>
    </message>
    <message>
        <source>Viet Nam</source>
        <translation>Vietnam</translation>
    </message>
    <message>
        <source>Virgin Islands, British</source>
        <translation>İngiliz Virgin Adaları</translation>
    </message>
    <message>
        <source>Virgin Islands, U.S.</source>
        <translation>Virgin Adaları, A.B.D.</translation>
    </message>
    <message>
        <source>Wallis and Futuna</source>
        <translation>Wallis ve Futuna Adaları</translation>
    </message>
    <message>
        <source>Western Sahara</source>
        <translation>Batı Sahra</translation>
    </message>
    <message>
        <source>Yemen</source>
        <translation>Yemen</translation>
    </message>
    <message>
        <source>Zambia</source>
        <translation>Zambiya</translation>
    </message>
    <message>
        <source>Zimbabwe</source>
        <translation>Zimbabve</translation>
    </message>
</context>
<context>
    <name>DesktopAnswer</name>
    <message>
        <source>tovra: no location matches “%1”</source>
        <translation>tovra: “%1” ile eşleşen konum yok</translation>
    </message>
    <message>
        <source>tovra: Tovra is busy with another connection or sign-in; try again when it has finished</source>
        <translation>tovra: Tovra başka bir bağlantı veya girişle meşgul; bittiğinde yeniden deneyin</translation>
    </message>
    <message>
        <source>tovra: sign in to Tovra before connecting</source>
        <translation>tovra: bağlanmadan önce Tovra&apos;ya giriş yapın</translation>
    </message>
    <message>
        <source>tovra: your plan does not include “%1”</source>
        <translation>tovra: planınız “%1” konumunu içermiyor</translation>
    </message>
    <message>
        <source>tovra: the request failed</source>
        <translation>tovra: istek başarısız oldu</translation>
    </message>
    <message>
        <source>tovra: %1</source>
        <translation>tovra: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandLine</name>
    <message>
        <source>tovra: give only one of %1</source>
        <translation>tovra: şunlardan yalnızca birini verin: %1</translation>
    </message>
</context>
<context>
    <name>DesktopCommandSender</name>
    <message>
        <source>could not start Tovra</source>
        <translation>Tovra başlatılamadı</translation>
    </message>
    <message>
        <source>Tovra did not start</source>
        <translation>Tovra başlamadı</translation>
    </message>
    <message>
        <source>the running Tovra is an older version: it came to the front but did not act on the request; quit it and try again</source>
        <translation>çalışan Tovra daha eski bir sürüm: öne geldi ama isteği yerine getirmedi; kapatıp yeniden deneyin</translation>
    </message>
    <message>
        <source>the running Tovra did not answer</source>
        <translation>çalışan Tovra yanıt vermedi</translation>
    </message>
</context>
<context>
    <name>DiagnosticsSection</name>
    <message>
        <source>Configuration</source>
        <extracomment>Label of a folder path: where the service keeps its configuration</extracomment>
        <translation>Yapılandırma</translation>
    </message>
    <message>
        <source>Runtime</source>
        <extracomment>Label of a folder path: where the service keeps its running files (socket, PID file); not a duration</extracomment>
        <translation>Çalışma klasörü</translation>
    </message>
    <message>
        <source>Logs</source>
        <extracomment>Label of a folder path: the service&apos;s log folder</extracomment>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>State file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>Durum dosyası</translation>
    </message>
    <message>
        <source>Credentials key</source>
        <extracomment>Label of a file path: the key file for the stored account credentials</extracomment>
        <translation>Kimlik bilgisi anahtarı</translation>
    </message>
    <message>
        <source>History</source>
        <extracomment>Label of a file path: the service&apos;s history file</extracomment>
        <translation>Geçmiş</translation>
    </message>
    <message>
        <source>Profiles</source>
        <extracomment>Label of a folder path: the service&apos;s profiles folder</extracomment>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>Control socket</source>
        <extracomment>Label of a file path: the socket this app talks to the service through</extracomment>
        <translation>Denetim soketi</translation>
    </message>
    <message>
        <source>PID file</source>
        <extracomment>Label of a file path</extracomment>
        <translation>PID dosyası</translation>
    </message>
    <message>
        <source>Control address</source>
        <extracomment>Label of an address the service listens on for control requests</extracomment>
        <translation>Denetim adresi</translation>
    </message>
    <message>
        <source>Diagnostics</source>
        <translation>Tanılama</translation>
    </message>
    <message>
        <source>Repair</source>
        <extracomment>Button that resets the kill switch, local proxy and tunnel</extracomment>
        <translation>Onar</translation>
    </message>
    <message>
        <source>Open logs</source>
        <extracomment>Button that opens the log folder</extracomment>
        <translation>Günlükleri aç</translation>
    </message>
    <message>
        <source>Repair connection</source>
        <translation>Bağlantıyı onar</translation>
    </message>
    <message>
        <source>Resets the kill switch, the local proxy and the tunnel when traffic is stuck.</source>
        <translation>Trafik takıldığında Kill Switch&apos;i, yerel proxy&apos;yi ve tüneli sıfırlar.</translation>
    </message>
    <message>
        <source>The Tovra service&apos;s log folder, for support.</source>
        <translation>Destek için Tovra hizmetinin günlük klasörü.</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>Button that copies the path next to it</extracomment>
        <translation>Kopyala</translation>
    </message>
    <message>
        <source>Copy %1 path</source>
        <extracomment>%1 is one of the path labels above, such as &quot;Runtime&quot;</extracomment>
        <translation>Yolu kopyala: %1</translation>
    </message>
    <message>
        <source>Service paths</source>
        <translation>Hizmet yolları</translation>
    </message>
    <message>
        <source>Where the Tovra service keeps its files.</source>
        <translation>Tovra hizmetinin dosyalarını sakladığı yerler.</translation>
    </message>
    <message>
        <source>Tovra service version</source>
        <translation>Tovra hizmeti sürümü</translation>
    </message>
    <message>
        <source>Control protocol</source>
        <translation>Denetim protokolü</translation>
    </message>
    <message>
        <source>This app speaks version 1.</source>
        <translation>Bu uygulama sürüm 1&apos;i kullanır.</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>%1, not compatible</source>
        <translation>%1, uyumlu değil</translation>
    </message>
</context>
<context>
    <name>FieldClearButton</name>
    <message>
        <source>Clear search</source>
        <translation>Aramayı temizle</translation>
    </message>
    <message>
        <source>Clear text</source>
        <translation>Metni temizle</translation>
    </message>
</context>
<context>
    <name>GuiAutostart</name>
    <message>
        <source>Login startup is not supported on this platform.</source>
        <translation>Oturum açılışında başlatma bu platformda desteklenmiyor.</translation>
    </message>
    <message>
        <source>Could not resolve the Tovra executable for login startup.</source>
        <translation>Oturum açılışında başlatma için Tovra yürütülebilir dosyası bulunamadı.</translation>
    </message>
    <message>
        <source>Could not prepare the login startup directory.</source>
        <translation>Oturum açılışında başlatma klasörü hazırlanamadı.</translation>
    </message>
    <message>
        <source>Could not update Tovra login startup.</source>
        <translation>Tovra&apos;nın oturum açılışında başlatılması güncellenemedi.</translation>
    </message>
    <message>
        <source>Could not secure Tovra login startup.</source>
        <translation>Tovra&apos;nın oturum açılışında başlatılması güvenceye alınamadı.</translation>
    </message>
    <message>
        <source>Could not remove Tovra from login startup.</source>
        <translation>Tovra oturum açılışında başlatılanlardan kaldırılamadı.</translation>
    </message>
</context>
<context>
    <name>KeyboardShortcutsDialog</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klavye Kısayolları</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>Klavye kısayolları</translation>
    </message>
    <message>
        <source>These keys work anywhere in the Tovra window. Tab moves between controls.</source>
        <translation>Bu tuşlar Tovra penceresinin her yerinde çalışır. Tab denetimler arasında gezinir.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tuşlar</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the keyboard shortcuts list</extracomment>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>KillSwitchConfirm</name>
    <message>
        <source>Unavailable</source>
        <translation>Kullanılamıyor</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Zorunlu mod</translation>
    </message>
    <message>
        <source>Lockdown unavailable</source>
        <translation>Zorunlu mod kullanılamıyor</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>State of the kill switch: turned on</extracomment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>State of the kill switch: turned off</extracomment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode</source>
        <translation>Kill Switch bir VPN modu gerektirir</translation>
    </message>
    <message>
        <source>Kill Switch can’t run in Tovra Proxy. Switch to Auto (recommended), TovraVPN, or WireGuard to enable it.</source>
        <translation>Kill Switch, Tovra Proxy modunda çalışamaz. Etkinleştirmek için Otomatik (önerilen), TovraVPN veya WireGuard moduna geçin.</translation>
    </message>
    <message>
        <source>Switch to Auto and enable</source>
        <extracomment>Button that switches to the Auto mode and turns the kill switch on</extracomment>
        <translation>Otomatik&apos;e geç ve etkinleştir</translation>
    </message>
    <message>
        <source>Switch to Auto and enable Kill Switch</source>
        <translation>Otomatik moda geç ve Kill Switch&apos;i etkinleştir</translation>
    </message>
    <message>
        <source>Choose mode…</source>
        <extracomment>Button that opens the Mode page to pick a VPN mode</extracomment>
        <translation>Mod seç…</translation>
    </message>
    <message>
        <source>Choose a mode for Kill Switch</source>
        <translation>Kill Switch için bir mod seçin</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Tovra Proxy needs Kill Switch off</source>
        <translation>Tovra Proxy için Kill Switch kapalı olmalı</translation>
    </message>
    <message>
        <source>Kill Switch blocks Tovra Proxy. Turn Kill Switch off in Settings first, then switch modes.</source>
        <translation>Kill Switch, Tovra Proxy&apos;yi engeller. Önce Ayarlar&apos;dan Kill Switch&apos;i kapatın, ardından modu değiştirin.</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>Button that opens the Settings page</extracomment>
        <translation>Ayarları Aç</translation>
    </message>
    <message>
        <source>Open Settings to turn off Kill Switch</source>
        <translation>Kill Switch&apos;i kapatmak için Ayarlar&apos;ı açın</translation>
    </message>
</context>
<context>
    <name>KillSwitchSection</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Block traffic outside the tunnel</source>
        <translation>Tünel dışındaki trafiği engelle</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel while Tovra is connected or connecting.</source>
        <translation>Tovra bağlıyken veya bağlanırken tünel dışındaki trafiği engeller.</translation>
    </message>
    <message>
        <source>Always</source>
        <translation>Her zaman</translation>
    </message>
    <message>
        <source>Blocks traffic outside the tunnel whenever Kill Switch is on, even while disconnected.</source>
        <translation>Kill Switch açık olduğu sürece, bağlı değilken bile tünel dışındaki trafiği engeller.</translation>
    </message>
    <message>
        <source>Lockdown</source>
        <translation>Zorunlu</translation>
    </message>
    <message>
        <source>Set by the Tovra service: traffic outside the tunnel stays blocked and Kill Switch cannot be turned off here.</source>
        <translation>Tovra hizmeti tarafından ayarlandı: tünel dışındaki trafik engelli kalır ve Kill Switch buradan kapatılamaz.</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>When Kill Switch blocks traffic.</source>
        <translation>Kill Switch&apos;in trafiği ne zaman engelleyeceği.</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Whether printers, shares and other devices nearby stay reachable while traffic is blocked.</source>
        <translation>Trafik engelliyken yazıcıların, paylaşımların ve yakındaki diğer cihazların erişilebilir kalıp kalmayacağı.</translation>
    </message>
    <message>
        <source>Kill Switch mode: %1</source>
        <translation>Kill Switch modu: %1</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Şu anda: %1</translation>
    </message>
    <message>
        <source>%1. The Tovra service holds Kill Switch on; it cannot be turned off here.</source>
        <translation>%1. Tovra hizmeti Kill Switch&apos;i açık tutuyor; buradan kapatılamaz.</translation>
    </message>
    <message>
        <source>Tovra Proxy is in use: Kill Switch needs a VPN mode.</source>
        <translation>Tovra Proxy kullanılıyor: Kill Switch bir VPN modu gerektirir.</translation>
    </message>
    <message>
        <source>Reachable</source>
        <translation>Erişilebilir</translation>
    </message>
    <message>
        <source>Blocked</source>
        <translation>Engelli</translation>
    </message>
</context>
<context>
    <name>LanguagePickerDialog</name>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Use system language</source>
        <translation>Sistem dilini kullan</translation>
    </message>
    <message>
        <source>Use system language (%1)</source>
        <translation>Sistem dilini kullan (%1)</translation>
    </message>
    <message>
        <source>Follow the desktop&apos;s language</source>
        <translation>Masaüstünün dilini kullan</translation>
    </message>
    <message>
        <source>Choose a language</source>
        <translation>Bir dil seçin</translation>
    </message>
    <message>
        <source>Tovra restarts to show the new language.</source>
        <translation>Yeni dili göstermek için Tovra yeniden başlatılır.</translation>
    </message>
    <message>
        <source>Search languages</source>
        <translation>Dil ara</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>Diller</translation>
    </message>
    <message>
        <source>Use language</source>
        <extracomment>Button that switches to the chosen language</extracomment>
        <translation>Dili kullan</translation>
    </message>
</context>
<context>
    <name>LocationItemDelegate</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
</context>
<context>
    <name>LocationsEmptyState</name>
    <message>
        <source>The Tovra service is not available.
Locations appear here as soon as it responds.</source>
        <translation>Tovra hizmeti kullanılamıyor.
Hizmet yanıt verir vermez konumlar burada görünür.</translation>
    </message>
    <message>
        <source>Loading locations...</source>
        <translation>Konumlar yükleniyor...</translation>
    </message>
    <message>
        <source>The service has no locations to offer right now.
Try Refresh in a moment.</source>
        <translation>Hizmet şu anda hiçbir konum sunmuyor.
Biraz sonra Yenile&apos;yi deneyin.</translation>
    </message>
    <message>
        <source>No favourites yet.
Star a location (or select it and press Space) to keep it here.</source>
        <translation>Henüz favori yok.
Bir konumu burada tutmak için yıldızlayın (veya seçip Boşluk tuşuna basın).</translation>
    </message>
    <message>
        <source>No locations in this tab.</source>
        <translation>Bu sekmede konum yok.</translation>
    </message>
    <message>
        <source>Nothing matches “%1”.
Try a country, a city or a code such as “de”.</source>
        <translation>“%1” ile eşleşen sonuç yok.
Bir ülke, şehir veya “de” gibi bir kod deneyin.</translation>
    </message>
    <message>
        <source>Could not load the locations: %1
Press Refresh to try again.</source>
        <extracomment>%1 is the service&apos;s own error text</extracomment>
        <translation>Konumlar yüklenemedi: %1
Yeniden denemek için Yenile&apos;ye basın.</translation>
    </message>
</context>
<context>
    <name>LocationsFavoriteButton</name>
    <message>
        <source>Remove from favourites</source>
        <translation>Favorilerden kaldır</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Favorilere ekle</translation>
    </message>
    <message>
        <source>Select a location in the list to star it</source>
        <translation>Yıldızlamak için listeden bir konum seçin</translation>
    </message>
    <message>
        <source>Remove %1 from favourites</source>
        <translation>Favorilerden kaldır: %1</translation>
    </message>
    <message>
        <source>Add %1 to favourites</source>
        <translation>Favorilere ekle: %1</translation>
    </message>
</context>
<context>
    <name>LocationsPage</name>
    <message>
        <source>All locations</source>
        <translation>Tüm konumlar</translation>
    </message>
    <message>
        <source>Double-click a location to connect to it, or a country or city to connect to its fastest location.</source>
        <translation>Bir konuma bağlanmak için üzerine, ülke veya şehrin en hızlı konumuna bağlanmak için ülkeye ya da şehre çift tıklayın.</translation>
    </message>
    <message>
        <source>Search countries, cities, locations or P2P</source>
        <translation>Ülke, şehir, konum veya P2P ara</translation>
    </message>
    <message>
        <source>Search locations</source>
        <translation>Konum ara</translation>
    </message>
    <message>
        <source>None of the locations in %1 is included in your plan.</source>
        <translation>%1 içindeki konumların hiçbiri planınıza dahil değil.</translation>
    </message>
    <message>
        <source>%1 is not included in your plan. Upgrade to use it.</source>
        <translation>%1 planınıza dahil değil. Kullanmak için planınızı yükseltin.</translation>
    </message>
    <message>
        <source>Location actions</source>
        <translation>Konum işlemleri</translation>
    </message>
    <message>
        <source>Connect to the fastest location</source>
        <translation>En hızlı konuma bağlan</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>Daralt</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>Genişlet</translation>
    </message>
    <message>
        <source>Remove from favourites</source>
        <translation>Favorilerden kaldır</translation>
    </message>
    <message>
        <source>Add to favourites</source>
        <translation>Favorilere ekle</translation>
    </message>
</context>
<context>
    <name>LocationsStatusLine</name>
    <message>
        <source>Matches in every tab: %1</source>
        <translation>Tüm sekmelerdeki eşleşmeler: %1</translation>
    </message>
    <message>
        <source>Locations: %1</source>
        <translation>Konumlar: %1</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Bağlandı: %1</translation>
    </message>
    <message>
        <source>Measuring latency...</source>
        <translation>Gecikme ölçülüyor...</translation>
    </message>
    <message>
        <source>This list may be out of date; Refresh fetches a new one.</source>
        <translation>Bu liste güncel olmayabilir; Yenile yeni bir liste getirir.</translation>
    </message>
    <message>
        <source>Grouping by region until the service&apos;s groups arrive.</source>
        <translation>Hizmetin grupları gelene kadar bölgeye göre gruplanıyor.</translation>
    </message>
</context>
<context>
    <name>LocationsToolbar</name>
    <message>
        <source>All</source>
        <translation>Tümü</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Ücretsiz</translation>
    </message>
    <message>
        <source>Premium</source>
        <translation>Premium</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriler</translation>
    </message>
    <message>
        <source>Location tabs</source>
        <translation>Konum sekmeleri</translation>
    </message>
    <message>
        <source>Sort locations</source>
        <translation>Konumları sırala</translation>
    </message>
    <message>
        <source>Service order</source>
        <translation>Varsayılan sıra</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Latency</source>
        <translation>Gecikme</translation>
    </message>
    <message>
        <source>Order of the locations within each group</source>
        <translation>Her gruptaki konumların sırası</translation>
    </message>
    <message>
        <source>Fetch the list of locations again and measure their latency</source>
        <translation>Konum listesini yeniden getir ve gecikmelerini ölç</translation>
    </message>
    <message>
        <source>Refresh (%1s)</source>
        <extracomment>Button, disabled for %1 more seconds before the list can be fetched again</extracomment>
        <translation>Yenile (%1 sn)</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Yenile</translation>
    </message>
    <message>
        <source>Refresh locations, possible again in %1 s</source>
        <translation>Konumları yenile, %1 sn sonra yeniden mümkün</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Konumları yenile</translation>
    </message>
</context>
<context>
    <name>LocationsTreeView</name>
    <message>
        <source>Locations</source>
        <translation>Konumlar</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Tovra</source>
        <translation>Tovra</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Operation failed</source>
        <extracomment>Shown when a request to the Tovra service failed without a reason. Word it as a user would understand it: &quot;Could not complete the action&quot;</extracomment>
        <translation>İşlem tamamlanamadı</translation>
    </message>
    <message>
        <source>Settings operation failed</source>
        <extracomment>Shown when changing a setting failed without a reason. Word it as a user would understand it: &quot;Could not change the settings&quot;</extracomment>
        <translation>Ayarlar değiştirilemedi</translation>
    </message>
    <message>
        <source>Mode operation failed</source>
        <extracomment>Shown when changing the mode failed without a reason. Word it as a user would understand it: &quot;Could not change the mode&quot;</extracomment>
        <translation>Mod değiştirilemedi</translation>
    </message>
</context>
<context>
    <name>ModeChoiceCard</name>
    <message>
        <source>Tovra picks the protocol that works best here.</source>
        <translation>Tovra, bulunduğunuz yerde en iyi çalışan protokolü seçer.</translation>
    </message>
    <message>
        <source>A fast, modern tunnel for all your traffic.</source>
        <translation>Tüm trafiğiniz için hızlı, modern bir tünel.</translation>
    </message>
    <message>
        <source>All traffic goes through the TovraVPN tunnel.</source>
        <translation>Tüm trafik TovraVPN tünelinden geçer.</translation>
    </message>
    <message>
        <source>The tunnel by default; chosen regions and sites go direct.</source>
        <translation>Varsayılan olarak tünel; seçilen bölgeler ve siteler doğrudan gider.</translation>
    </message>
    <message>
        <source>No tunnel: apps that use the local proxy reach the internet through Tovra.</source>
        <translation>Tünel yok: yerel proxy&apos;yi kullanan uygulamalar internete Tovra üzerinden çıkar.</translation>
    </message>
    <message>
        <source>The local proxy, with chosen regions and sites going direct.</source>
        <translation>Yerel proxy; seçilen bölgeler ve siteler doğrudan gider.</translation>
    </message>
    <message>
        <source>Applying…</source>
        <translation>Uygulanıyor…</translation>
    </message>
    <message>
        <source>Kill Switch needs a VPN mode: pick Auto, WireGuard or TovraVPN to turn it on.</source>
        <translation>Kill Switch bir VPN modu gerektirir: açmak için Otomatik, WireGuard veya TovraVPN&apos;i seçin.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>Bir mod seçin</translation>
    </message>
    <message>
        <source>The current mode shows once the Tovra service answers.</source>
        <translation>Geçerli mod, Tovra hizmeti yanıt verdiğinde görünür.</translation>
    </message>
    <message>
        <source>Current mode: %1. This version of Tovra does not know it; choose one of the modes above to replace it.</source>
        <translation>Geçerli mod: %1. Tovra&apos;nın bu sürümü bu modu tanımıyor; yerine yukarıdaki modlardan birini seçin.</translation>
    </message>
</context>
<context>
    <name>ModePage</name>
    <message>
        <source>Auto</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>TovraVPN Split</source>
        <translation>TovraVPN (Bölünmüş)</translation>
    </message>
    <message>
        <source>TovraVPN Global</source>
        <translation>TovraVPN (Genel)</translation>
    </message>
    <message>
        <source>Tovra Proxy Split</source>
        <translation>Tovra Proxy (Bölünmüş)</translation>
    </message>
    <message>
        <source>Tovra Proxy Global</source>
        <translation>Tovra Proxy (Genel)</translation>
    </message>
    <message>
        <source>Routing mode</source>
        <translation>Yönlendirme modu</translation>
    </message>
    <message>
        <source>Choose how your traffic is routed and which sites bypass the tunnel.</source>
        <translation>Trafiğinizin nasıl yönlendirileceğini ve hangi sitelerin tünelin dışında kalacağını seçin.</translation>
    </message>
</context>
<context>
    <name>NavigationSidebar</name>
    <message>
        <source>Locations</source>
        <translation>Konumlar</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>VPN</source>
        <translation>VPN</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Hesap</translation>
    </message>
</context>
<context>
    <name>NetworkOptionsCard</name>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Sistem proxy&apos;si</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network option: devices nearby are reached outside the tunnel</extracomment>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Printers, shares and other devices on your network stay reachable</source>
        <translation>Ağınızdaki yazıcılar, paylaşımlar ve diğer cihazlar erişilebilir kalır</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network option: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Korumalı</translation>
    </message>
    <message>
        <source>Local network traffic is protected like the rest</source>
        <translation>Yerel ağ trafiği de diğer trafik gibi korunur</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy option: the desktop proxy settings are left alone</extracomment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings are left alone</source>
        <translation>Masaüstünün proxy ayarlarına dokunulmaz</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy option: the desktop proxy settings point at Tovra</extracomment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra</source>
        <translation>Masaüstünün proxy ayarları Tovra&apos;yı gösterir</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy option, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Kilitli</translation>
    </message>
    <message>
        <source>The desktop&apos;s proxy settings point at Tovra and are kept so</source>
        <translation>Masaüstünün proxy ayarları Tovra&apos;yı gösterir ve öyle kalır</translation>
    </message>
    <message>
        <source>Whether devices on your local network stay reachable while Tovra routes your traffic.</source>
        <translation>Tovra trafiğinizi yönlendirirken yerel ağınızdaki cihazların erişilebilir kalıp kalmayacağı.</translation>
    </message>
    <message>
        <source>Point the desktop&apos;s proxy settings at Tovra, or also keep other programs from changing them.</source>
        <translation>Masaüstünün proxy ayarlarını Tovra&apos;ya yönlendirin veya ayrıca diğer programların bunları değiştirmesini engelleyin.</translation>
    </message>
</context>
<context>
    <name>NetworkSection</name>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>SOCKS5 listener</source>
        <translation>SOCKS5 dinleyicisi</translation>
    </message>
    <message>
        <source>HTTP listener</source>
        <translation>HTTP dinleyicisi</translation>
    </message>
    <message>
        <source>Apply listeners</source>
        <extracomment>Button that applies the SOCKS5 and HTTP listen addresses typed above</extracomment>
        <translation>Dinleyicileri uygula</translation>
    </message>
    <message>
        <source>Local DNS servers</source>
        <translation>Yerel DNS sunucuları</translation>
    </message>
    <message>
        <source>For example 192.168.1.1, ::1</source>
        <translation>Örneğin 192.168.1.1, ::1</translation>
    </message>
    <message>
        <source>Save servers</source>
        <extracomment>Button that saves the local DNS servers typed in the field</extracomment>
        <translation>Sunucuları kaydet</translation>
    </message>
    <message>
        <source>Clear servers</source>
        <extracomment>Button that empties the list of local DNS servers</extracomment>
        <translation>Sunucuları temizle</translation>
    </message>
    <message>
        <source>Reset split DNS</source>
        <extracomment>Button that puts the split DNS settings back to their defaults</extracomment>
        <translation>Bölünmüş DNS&apos;i sıfırla</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy choice: the desktop proxy settings are left alone</extracomment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy choice: the desktop proxy settings point at Tovra</extracomment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>On and locked</source>
        <translation>Açık ve kilitli</translation>
    </message>
    <message>
        <source>System proxy</source>
        <translation>Sistem proxy&apos;si</translation>
    </message>
    <message>
        <source>Points the desktop&apos;s proxy settings at Tovra; locked keeps other programs from changing them.</source>
        <translation>Masaüstünün proxy ayarlarını Tovra&apos;ya yönlendirir; kilitli seçeneği diğer programların bunları değiştirmesini engeller.</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network choice: devices nearby are reached outside the tunnel</extracomment>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network choice: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Korumalı</translation>
    </message>
    <message>
        <source>Local network</source>
        <translation>Yerel ağ</translation>
    </message>
    <message>
        <source>Direct reaches devices nearby outside the tunnel; protected sends everything through it.</source>
        <translation>Doğrudan, yakındaki cihazlara tünel dışından ulaşır; korumalı, her şeyi tünelden geçirir.</translation>
    </message>
    <message>
        <source>SOCKS5</source>
        <translation>SOCKS5</translation>
    </message>
    <message>
        <source>HTTP</source>
        <translation>HTTP</translation>
    </message>
    <message>
        <source>Local proxy listeners</source>
        <translation>Yerel proxy dinleyicileri</translation>
    </message>
    <message>
        <source>Addresses where the daemon accepts proxy connections, as host:port. Leave a field empty to close that listener.</source>
        <translation>Hizmetin proxy bağlantılarını kabul ettiği adresler, ana_makine:bağlantı_noktası biçiminde. Bir dinleyiciyi kapatmak için alanını boş bırakın.</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Local DNS</source>
        <translation>Yerel DNS</translation>
    </message>
    <message>
        <source>Remote DNS</source>
        <translation>Uzak DNS</translation>
    </message>
    <message>
        <source>Split DNS</source>
        <translation>Bölünmüş DNS</translation>
    </message>
    <message>
        <source>Which resolver answers for names that stay outside the tunnel.</source>
        <translation>Tünel dışında kalan adları hangi çözümleyicinin yanıtlayacağı.</translation>
    </message>
    <message>
        <source>IP addresses of the resolvers for local names, separated by commas.</source>
        <translation>Yerel adlar için çözümleyicilerin IP adresleri, virgülle ayrılmış.</translation>
    </message>
    <message>
        <source>In effect: %1</source>
        <translation>Geçerli: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>In effect: %1, servers %2</source>
        <translation>Geçerli: %1, sunucular: %2</translation>
    </message>
    <message>
        <source>(from %1)</source>
        <translation>(kaynak: %1)</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>(from the system settings)</source>
        <translation>(sistem ayarlarından)</translation>
    </message>
    <message>
        <source>(from your list)</source>
        <translation>(listenizden)</translation>
    </message>
</context>
<context>
    <name>NotificationHost</name>
    <message>
        <source>Dismiss notification</source>
        <translation>Bildirimi kapat</translation>
    </message>
    <message>
        <source>Notification: %1</source>
        <translation>Bildirim: %1</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::ShellText</name>
    <message>
        <source>Custom split rules unchanged</source>
        <translation>Özel bölme kuralları değişmedi</translation>
    </message>
</context>
<context>
    <name>QCoreApplication::TrayMenuText</name>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
</context>
<context>
    <name>QuickEntryField</name>
    <message>
        <source>Search for a country, city or location</source>
        <translation>Ülke, şehir veya konum ara</translation>
    </message>
    <message>
        <source>Quick connect search</source>
        <translation>Hızlı bağlantı araması</translation>
    </message>
</context>
<context>
    <name>QuickEntryModel</name>
    <message>
        <source>Recent searches</source>
        <translation>Son aramalar</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Son konumlar</translation>
    </message>
    <message>
        <source>Type a country, city or location name</source>
        <translation>Bir ülke, şehir veya konum adı yazın</translation>
    </message>
    <message>
        <source>No locations match “%1”</source>
        <translation>“%1” ile eşleşen konum yok</translation>
    </message>
    <message>
        <source>%1  ·  %2</source>
        <translation>%1  ·  %2</translation>
    </message>
</context>
<context>
    <name>QuickEntryPopup</name>
    <message>
        <source>Search results</source>
        <translation>Arama sonuçları</translation>
    </message>
</context>
<context>
    <name>SettingsCard</name>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Tercihler</translation>
    </message>
    <message>
        <source>Changes take effect once the Tovra service confirms them.</source>
        <translation>Değişiklikler, Tovra hizmeti onayladığında geçerli olur.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>Ayarlar uygulanıyor...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Settings can be changed again once the Tovra service answers.</source>
        <translation>Ayarlar, Tovra hizmeti yanıt verdiğinde yeniden değiştirilebilir.</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service...</source>
        <translation>Tovra hizmeti bekleniyor...</translation>
    </message>
</context>
<context>
    <name>SettingsRow</name>
    <message>
        <source>%1: %2</source>
        <comment>row title: help text</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SettingsValidator</name>
    <message>
        <source>Add a port: host:port, for example 127.0.0.1:1080.</source>
        <translation>Bir bağlantı noktası ekleyin: ana_makine:bağlantı_noktası, örneğin 127.0.0.1:1080.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IPv6 address.</source>
        <translation>&quot;%1&quot; bir IPv6 adresi değil.</translation>
    </message>
    <message>
        <source>Write an IPv6 address in brackets: [::1]:1080.</source>
        <translation>IPv6 adresini köşeli parantez içinde yazın: [::1]:1080.</translation>
    </message>
    <message>
        <source>Add a host before the port: host:port.</source>
        <translation>Bağlantı noktasından önce bir ana makine ekleyin: ana_makine:bağlantı_noktası.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a host name or IP address.</source>
        <translation>&quot;%1&quot; bir ana makine adı veya IP adresi değil.</translation>
    </message>
    <message>
        <source>Add a port after the colon: host:port.</source>
        <translation>İki noktadan sonra bir bağlantı noktası ekleyin: ana_makine:bağlantı_noktası.</translation>
    </message>
    <message>
        <source>The port must be a number from 1 to 65535.</source>
        <translation>Bağlantı noktası 1 ile 65535 arasında bir sayı olmalıdır.</translation>
    </message>
    <message>
        <source>Enter an API URL, or reset it to the default.</source>
        <translation>Bir API adresi girin veya varsayılana sıfırlayın.</translation>
    </message>
    <message>
        <source>The API URL must start with http:// or https://.</source>
        <translation>API adresi http:// veya https:// ile başlamalıdır.</translation>
    </message>
    <message>
        <source>The API URL needs a host, for example https://api.example.com.</source>
        <translation>API adresinde bir ana makine olmalıdır, örneğin https://api.example.com.</translation>
    </message>
    <message>
        <source>Enter at least one DNS server, or clear the list.</source>
        <translation>En az bir DNS sunucusu girin veya listeyi temizleyin.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not an IP address.</source>
        <translation>&quot;%1&quot; bir IP adresi değil.</translation>
    </message>
</context>
<context>
    <name>SplitOptionsCard</name>
    <message>
        <source>Choose TovraVPN Split or Tovra Proxy Split to send some traffic direct: by region, by the GFWList or by your own rules.</source>
        <translation>Trafiğin bir kısmını bölgeye, GFWList&apos;e veya kendi kurallarınıza göre doğrudan göndermek için TovraVPN (Bölünmüş) ya da Tovra Proxy (Bölünmüş) modunu seçin.</translation>
    </message>
    <message>
        <source>Default route</source>
        <translation>Varsayılan yol</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Default route choice: traffic goes straight to the internet, outside the tunnel or proxy</extracomment>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Everything not chosen below goes direct</source>
        <translation>Aşağıda seçilmeyen her şey doğrudan gider</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>Button that opens the region picker</extracomment>
        <translation>Seç…</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Bölgeleri seç</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Bölgeler</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Özel bölme kuralları</translation>
    </message>
    <message>
        <source>Edit rules…</source>
        <extracomment>Button that opens the custom split rules editor</extracomment>
        <translation>Kuralları düzenle…</translation>
    </message>
    <message>
        <source>Edit custom split rules</source>
        <translation>Özel bölme kurallarını düzenle</translation>
    </message>
    <message>
        <source>Split routing</source>
        <translation>Bölünmüş yönlendirme</translation>
    </message>
    <message>
        <source>TovraVPN Split options</source>
        <translation>TovraVPN (Bölünmüş) seçenekleri</translation>
    </message>
    <message>
        <source>Tovra Proxy Split options</source>
        <translation>Tovra Proxy (Bölünmüş) seçenekleri</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tünel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the tunnel</source>
        <translation>Aşağıda seçilmeyen her şey tünelden geçer</translation>
    </message>
    <message>
        <source>Everything not chosen below goes through the proxy</source>
        <translation>Aşağıda seçilmeyen her şey proxy&apos;den geçer</translation>
    </message>
    <message>
        <source>Traffic goes direct unless a region, the GFWList or a rule says otherwise.</source>
        <translation>Bir bölge, GFWList veya kural aksini belirtmedikçe trafik doğrudan gider.</translation>
    </message>
    <message>
        <source>Traffic goes through the tunnel unless a region or a rule sends it direct.</source>
        <translation>Bir bölge veya kural doğrudan göndermedikçe trafik tünelden geçer.</translation>
    </message>
    <message>
        <source>Traffic goes through the proxy unless a region or a rule sends it direct.</source>
        <translation>Bir bölge veya kural doğrudan göndermedikçe trafik proxy&apos;den geçer.</translation>
    </message>
    <message>
        <source>No regions chosen.</source>
        <translation>Bölge seçilmedi.</translation>
    </message>
    <message>
        <source>Go direct: %1</source>
        <translation>Doğrudan: %1</translation>
    </message>
    <message>
        <source>Go through the tunnel: %1</source>
        <translation>Tünelden: %1</translation>
    </message>
    <message>
        <source>Go through the proxy: %1</source>
        <translation>Proxy&apos;den: %1</translation>
    </message>
    <message>
        <source>GFWList → Tunnel</source>
        <translation>GFWList → Tünel</translation>
    </message>
    <message>
        <source>GFWList → Proxy</source>
        <translation>GFWList → Proxy</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the tunnel.</source>
        <translation>GFWList&apos;teki siteler her zaman tünelden geçer.</translation>
    </message>
    <message>
        <source>Sites on the GFWList always go through the proxy.</source>
        <translation>GFWList&apos;teki siteler her zaman proxy&apos;den geçer.</translation>
    </message>
    <message>
        <source>Your own domain and address lists.</source>
        <translation>Kendi alan adı ve adres listeleriniz.</translation>
    </message>
    <message>
        <source>Your own domain and address lists. Rules held: %1.</source>
        <translation>Kendi alan adı ve adres listeleriniz. Kural sayısı: %1.</translation>
    </message>
</context>
<context>
    <name>TovraAppShell</name>
    <message>
        <source>Could not sign in</source>
        <translation>Giriş yapılamadı</translation>
    </message>
    <message>
        <source>Could not sign out</source>
        <translation>Çıkış yapılamadı</translation>
    </message>
    <message>
        <source>Could not load account</source>
        <translation>Hesap yüklenemedi</translation>
    </message>
    <message>
        <source>Could not open renewal page</source>
        <translation>Yenileme sayfası açılamadı</translation>
    </message>
    <message>
        <source>Refreshing locations...</source>
        <translation>Konumlar yenileniyor...</translation>
    </message>
    <message>
        <source>A locations update is already in progress</source>
        <translation>Konum güncellemesi zaten sürüyor</translation>
    </message>
    <message>
        <source>Could not update favorite</source>
        <translation>Favori güncellenemedi</translation>
    </message>
    <message>
        <source>Could not refresh locations</source>
        <translation>Konumlar yenilenemedi</translation>
    </message>
    <message>
        <source>Could not refresh location groups</source>
        <translation>Konum grupları yenilenemedi</translation>
    </message>
    <message>
        <source>Locations updated</source>
        <translation>Konumlar güncellendi</translation>
    </message>
    <message>
        <source>Could not connect to this location</source>
        <translation>Bu konuma bağlanılamadı</translation>
    </message>
    <message>
        <source>Could not connect</source>
        <translation>Bağlanılamadı</translation>
    </message>
    <message>
        <source>Could not disconnect</source>
        <translation>Bağlantı kesilemedi</translation>
    </message>
    <message>
        <source>Could not update language</source>
        <translation>Dil güncellenemedi</translation>
    </message>
    <message>
        <source>Restarting Tovra to apply the interface language.</source>
        <translation>Arayüz dilini uygulamak için Tovra yeniden başlatılıyor.</translation>
    </message>
    <message>
        <source>Could not restart Tovra. Please restart the app manually.</source>
        <translation>Tovra yeniden başlatılamadı. Lütfen uygulamayı elle yeniden başlatın.</translation>
    </message>
    <message>
        <source>Could not switch mode</source>
        <translation>Mod değiştirilemedi</translation>
    </message>
    <message>
        <source>Could not update local network</source>
        <translation>Yerel ağ ayarı güncellenemedi</translation>
    </message>
    <message>
        <source>Could not update system proxy</source>
        <translation>Sistem proxy&apos;si güncellenemedi</translation>
    </message>
    <message>
        <source>Please wait for the current operation to finish</source>
        <translation>Lütfen geçerli işlemin bitmesini bekleyin</translation>
    </message>
    <message>
        <source>Pick a VPN mode to turn on Kill Switch</source>
        <translation>Kill Switch&apos;i açmak için bir VPN modu seçin</translation>
    </message>
    <message>
        <source>Could not load kill switch</source>
        <translation>Kill Switch yüklenemedi</translation>
    </message>
    <message>
        <source>Could not update kill switch</source>
        <translation>Kill Switch güncellenemedi</translation>
    </message>
    <message>
        <source>Custom split rules updated, but rules could not be refreshed</source>
        <translation>Özel bölme kuralları güncellendi ancak kurallar yenilenemedi</translation>
    </message>
    <message>
        <source>Could not load split rules</source>
        <translation>Bölme kuralları yüklenemedi</translation>
    </message>
    <message>
        <source>Could not import split rules</source>
        <translation>Bölme kuralları içe aktarılamadı</translation>
    </message>
    <message numerus="yes">
        <source>Custom split rules updated (%n rule(s))</source>
        <translation>
            <numerusform>Özel bölme kuralları güncellendi (%n kural)</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not load config paths</source>
        <translation>Yapılandırma yolları yüklenemedi</translation>
    </message>
    <message>
        <source>Could not load API URL</source>
        <translation>API adresi yüklenemedi</translation>
    </message>
    <message>
        <source>Could not update API URL</source>
        <translation>API adresi güncellenemedi</translation>
    </message>
    <message>
        <source>API URL reset to default</source>
        <translation>API adresi varsayılana sıfırlandı</translation>
    </message>
    <message>
        <source>API URL validated and saved</source>
        <translation>API adresi doğrulandı ve kaydedildi</translation>
    </message>
    <message>
        <source>API URL saved but not validated</source>
        <translation>API adresi kaydedildi ancak doğrulanmadı</translation>
    </message>
    <message>
        <source>Could not update auto connect</source>
        <translation>Otomatik bağlanma güncellenemedi</translation>
    </message>
    <message>
        <source>Could not update proxy listen address</source>
        <translation>Proxy dinleme adresi güncellenemedi</translation>
    </message>
    <message>
        <source>Proxy listen address saved for reconnect</source>
        <translation>Proxy dinleme adresi yeniden bağlanınca geçerli olmak üzere kaydedildi</translation>
    </message>
    <message>
        <source>Proxy listen address updated</source>
        <translation>Proxy dinleme adresi güncellendi</translation>
    </message>
    <message>
        <source>Could not load split DNS</source>
        <translation>Bölünmüş DNS yüklenemedi</translation>
    </message>
    <message>
        <source>Could not update split DNS</source>
        <translation>Bölünmüş DNS güncellenemedi</translation>
    </message>
    <message>
        <source>Split DNS updated</source>
        <translation>Bölünmüş DNS güncellendi</translation>
    </message>
    <message>
        <source>Repair failed</source>
        <translation>Onarma başarısız oldu</translation>
    </message>
    <message>
        <source>Repair completed</source>
        <translation>Onarma tamamlandı</translation>
    </message>
    <message>
        <source>Could not reach the Tovra service</source>
        <translation>Tovra hizmetine ulaşılamadı</translation>
    </message>
    <message>
        <source>Could not load languages</source>
        <translation>Diller yüklenemedi</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Güncellemeler denetleniyor...</translation>
    </message>
    <message>
        <source>Could not check for updates</source>
        <translation>Güncellemeler denetlenemedi</translation>
    </message>
    <message>
        <source>Tovra %1 is available</source>
        <translation>Tovra %1 kullanıma sunuldu</translation>
    </message>
    <message>
        <source>Tovra is up to date</source>
        <translation>Tovra güncel</translation>
    </message>
    <message>
        <source>Checking Tovra service compatibility...</source>
        <translation>Tovra hizmetinin uyumluluğu denetleniyor...</translation>
    </message>
    <message>
        <source>Tovra GUI and daemon are incompatible. Update Tovra before continuing.</source>
        <translation>Tovra uygulaması ile hizmeti uyumsuz. Devam etmeden önce Tovra&apos;yı güncelleyin.</translation>
    </message>
    <message>
        <source>Could not load version</source>
        <translation>Sürüm yüklenemedi</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <translation>İptal ediliyor...</translation>
    </message>
    <message>
        <source>Could not start the update download</source>
        <translation>Güncelleme indirmesi başlatılamadı</translation>
    </message>
    <message>
        <source>Could not confirm that the download started. Checking its status...</source>
        <translation>İndirmenin başladığı doğrulanamadı. Durumu denetleniyor...</translation>
    </message>
    <message>
        <source>Could not confirm cancellation. Retrying...</source>
        <translation>İptal doğrulanamadı. Yeniden deneniyor...</translation>
    </message>
    <message>
        <source>Could not read download progress. Retrying...</source>
        <translation>İndirme ilerlemesi okunamadı. Yeniden deneniyor...</translation>
    </message>
    <message>
        <source>The download belongs to a different update release. Check for updates again.</source>
        <translation>İndirilen dosya farklı bir güncelleme sürümüne ait. Güncellemeleri yeniden denetleyin.</translation>
    </message>
    <message>
        <source>The download completed before it could be canceled. The installer was not opened.</source>
        <translation>İndirme, iptal edilemeden tamamlandı. Yükleyici açılmadı.</translation>
    </message>
    <message>
        <source>Update information is unavailable. Check for updates again.</source>
        <translation>Güncelleme bilgisi kullanılamıyor. Güncellemeleri yeniden denetleyin.</translation>
    </message>
    <message>
        <source>The update was downloaded, but the installer could not be opened.</source>
        <translation>Güncelleme indirildi ancak yükleyici açılamadı.</translation>
    </message>
    <message>
        <source>GUI version is unavailable</source>
        <translation>Uygulama sürümü kullanılamıyor</translation>
    </message>
    <message>
        <source>A required Tovra update is being checked before connecting.</source>
        <translation>Bağlanmadan önce zorunlu bir Tovra güncellemesi denetleniyor.</translation>
    </message>
    <message>
        <source>Finishing the latest update check before starting the download...</source>
        <translation>İndirme başlamadan önce son güncelleme denetimi tamamlanıyor...</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting.</source>
        <translation>Bağlanmadan önce zorunlu bir Tovra güncellemesi yüklenmelidir.</translation>
    </message>
    <message>
        <source>The Tovra service is not available</source>
        <translation>Tovra hizmeti kullanılamıyor</translation>
    </message>
    <message>
        <source>The Tovra service did not answer</source>
        <translation>Tovra hizmeti yanıt vermedi</translation>
    </message>
    <message>
        <source>A required Tovra update must be installed before connecting</source>
        <translation>Bağlanmadan önce gerekli bir Tovra güncellemesi yüklenmelidir</translation>
    </message>
    <message>
        <source>Another connection request replaced this one</source>
        <translation>Başka bir bağlantı isteği bunun yerini aldı</translation>
    </message>
</context>
<context>
    <name>TovraRegionPickerDialog</name>
    <message>
        <source>Save</source>
        <extracomment>Button</extracomment>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>Choose regions</source>
        <translation>Bölgeleri seç</translation>
    </message>
    <message>
        <source>Search countries</source>
        <translation>Ülke ara</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>Ülkeler</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, outside the tunnel. Everything else goes through the tunnel.</source>
        <translation>İşaretlediğiniz bölgelere giden trafik tünelin dışından doğrudan gider. Diğer her şey tünelden geçer.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes direct, not through the proxy. Everything else goes through the proxy.</source>
        <translation>İşaretlediğiniz bölgelere giden trafik proxy&apos;den geçmeden doğrudan gider. Diğer her şey proxy&apos;den geçer.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the tunnel. Everything else goes direct.</source>
        <translation>İşaretlediğiniz bölgelere giden trafik tünelden geçer. Diğer her şey doğrudan gider.</translation>
    </message>
    <message>
        <source>Traffic to the regions you check goes through the proxy. Everything else goes direct.</source>
        <translation>İşaretlediğiniz bölgelere giden trafik proxy&apos;den geçer. Diğer her şey doğrudan gider.</translation>
    </message>
    <message>
        <source>Checked: %1</source>
        <translation>İşaretli: %1</translation>
    </message>
    <message>
        <source>No country matches “%1”.</source>
        <translation>“%1” ile eşleşen ülke yok.</translation>
    </message>
</context>
<context>
    <name>TovraSplitRulesEditorDialog</name>
    <message>
        <source>Rule list</source>
        <translation>Kural listesi</translation>
    </message>
    <message>
        <source>Import</source>
        <extracomment>Button that replaces the chosen rule list with the lines typed</extracomment>
        <translation>İçe aktar</translation>
    </message>
    <message>
        <source>Custom split rules</source>
        <translation>Özel bölme kuralları</translation>
    </message>
    <message>
        <source>One domain, IP address or CIDR range per line, such as example.org, 203.0.113.7 or 10.0.0.0/8. Lines starting with # are comments.</source>
        <translation>Her satıra bir alan adı, IP adresi veya CIDR aralığı; örneğin example.org, 203.0.113.7 veya 10.0.0.0/8. # ile başlayan satırlar yorumdur.</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Kurallar</translation>
    </message>
    <message>
        <source>example.org
*.example.net
203.0.113.0/24</source>
        <translation>example.org
*.example.net
203.0.113.0/24</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button</extracomment>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Replace the chosen list with these rules</source>
        <translation>Seçili listeyi bu kurallarla değiştir</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Name of the rule list whose sites and addresses go straight to the internet</extracomment>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Engellenen</translation>
    </message>
    <message>
        <source>Sites and addresses that always go direct</source>
        <translation>Her zaman doğrudan giden siteler ve adresler</translation>
    </message>
    <message>
        <source>Sites and addresses that always go through Tovra</source>
        <translation>Her zaman Tovra üzerinden giden siteler ve adresler</translation>
    </message>
    <message>
        <source>Sites and addresses that are blocked</source>
        <translation>Engellenen siteler ve adresler</translation>
    </message>
    <message>
        <source>Loading rules…</source>
        <translation>Kurallar yükleniyor…</translation>
    </message>
    <message>
        <source>The Tovra service reports no rule lists.</source>
        <translation>Tovra hizmeti hiçbir kural listesi bildirmiyor.</translation>
    </message>
    <message>
        <source>Rules are not loaded yet.</source>
        <translation>Kurallar henüz yüklenmedi.</translation>
    </message>
    <message>
        <source>Rules: %1 · Lines: %2</source>
        <translation>Kural: %1 · Satır: %2</translation>
    </message>
    <message>
        <source>not imported</source>
        <translation>içe aktarılmadı</translation>
    </message>
    <message>
        <source>importing…</source>
        <translation>içe aktarılıyor…</translation>
    </message>
    <message>
        <source>Nothing was imported. Fix these lines first:</source>
        <translation>Hiçbir şey içe aktarılmadı. Önce şu satırları düzeltin:</translation>
    </message>
    <message>
        <source>Line %1: “%2” is not a domain, IP address or CIDR range.</source>
        <translation>Satır %1: “%2” bir alan adı, IP adresi veya CIDR aralığı değil.</translation>
    </message>
    <message>
        <source>… Bad lines in all: %1.</source>
        <translation>… Toplam hatalı satır: %1.</translation>
    </message>
</context>
<context>
    <name>TrayMenuText</name>
    <message>
        <source>Tovra: connecting...</source>
        <translation>Tovra: bağlanıyor...</translation>
    </message>
    <message>
        <source>Tovra: connecting %1...</source>
        <translation>Tovra: bağlanıyor (%1)...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN split...</source>
        <extracomment>Changing the default route of the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: TovraVPN bölünmüş modu güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN regions...</source>
        <translation>Tovra: TovraVPN bölgeleri güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN GFWList...</source>
        <translation>Tovra: TovraVPN GFWList&apos;i güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating TovraVPN custom rules...</source>
        <translation>Tovra: TovraVPN özel kuralları güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy Split...</source>
        <translation>Tovra: Tovra Proxy bölünmüş modu güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy regions...</source>
        <translation>Tovra: Tovra Proxy bölgeleri güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating Tovra Proxy GFWList...</source>
        <translation>Tovra: Tovra Proxy GFWList&apos;i güncelleniyor...</translation>
    </message>
    <message>
        <source>operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when a request to the service failed without a reason. Word it as a user would understand it: &quot;could not complete the action&quot;</extracomment>
        <translation>işlem tamamlanamadı</translation>
    </message>
    <message>
        <source>log directory</source>
        <translation>günlük klasörü</translation>
    </message>
    <message>
        <source>missing %1</source>
        <translation>%1 eksik</translation>
    </message>
    <message>
        <source>%1 does not exist: %2</source>
        <translation>%1 mevcut değil: %2</translation>
    </message>
    <message>
        <source>could not open %1: %2</source>
        <translation>%1 açılamadı: %2</translation>
    </message>
    <message>
        <source>Current: loading...</source>
        <translation>Geçerli: yükleniyor...</translation>
    </message>
    <message>
        <source>Refresh Nodes</source>
        <translation>Konumları Yenile</translation>
    </message>
    <message>
        <source>Loading nodes...</source>
        <translation>Konumlar yükleniyor...</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>WireGuard</source>
        <translation>WireGuard</translation>
    </message>
    <message>
        <source>Mode: TovraVPN</source>
        <translation>Mod: TovraVPN</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Bölünmüş</translation>
    </message>
    <message>
        <source>Split Options</source>
        <translation>Bölme Seçenekleri</translation>
    </message>
    <message>
        <source>Default: Tunnel</source>
        <translation>Varsayılan: Tünel</translation>
    </message>
    <message>
        <source>Default: Direct</source>
        <translation>Varsayılan: Doğrudan</translation>
    </message>
    <message>
        <source>Regions</source>
        <translation>Bölgeler</translation>
    </message>
    <message>
        <source>GFWList -&gt; Tunnel</source>
        <translation>GFWList -&gt; Tünel</translation>
    </message>
    <message>
        <source>Custom Split Rules</source>
        <translation>Özel Bölme Kuralları</translation>
    </message>
    <message>
        <source>Mode: Tovra Proxy</source>
        <translation>Mod: Tovra Proxy</translation>
    </message>
    <message>
        <source>Default: Proxy</source>
        <translation>Varsayılan: Proxy</translation>
    </message>
    <message>
        <source>GFWList -&gt; Proxy</source>
        <translation>GFWList -&gt; Proxy</translation>
    </message>
    <message>
        <source>[ %1 ]</source>
        <translation>[ %1 ]</translation>
    </message>
    <message>
        <source>Tovra: starting...</source>
        <translation>Tovra: başlatılıyor...</translation>
    </message>
    <message>
        <source>Daemon: checking...</source>
        <translation>Hizmet: denetleniyor...</translation>
    </message>
    <message>
        <source>Open Tovra...</source>
        <translation>Tovra&apos;yı Aç...</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>Bağlantıyı Kes</translation>
    </message>
    <message>
        <source>Node / Location</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>System Proxy</source>
        <translation>Sistem Proxy&apos;si</translation>
    </message>
    <message>
        <source>Off</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings are left alone</extracomment>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>On</source>
        <extracomment>System proxy menu option and value: the desktop proxy settings point at Tovra</extracomment>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Lock</source>
        <extracomment>System proxy menu option and value, a state rather than an action: the desktop proxy settings point at Tovra and other programs cannot change them</extracomment>
        <translation>Kilitli</translation>
    </message>
    <message>
        <source>Local Network</source>
        <translation>Yerel Ağ</translation>
    </message>
    <message>
        <source>LAN Access</source>
        <translation>Yerel Ağ Erişimi</translation>
    </message>
    <message>
        <source>Direct</source>
        <extracomment>Local network menu option and value: devices nearby are reached outside the tunnel. Also the route in &quot;Regions use %1: %2&quot;</extracomment>
        <translation>Doğrudan</translation>
    </message>
    <message>
        <source>Protected</source>
        <extracomment>Local network menu option and value: local traffic goes through the tunnel like the rest</extracomment>
        <translation>Korumalı</translation>
    </message>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
    <message>
        <source>Refresh Status</source>
        <translation>Durumu Yenile</translation>
    </message>
    <message>
        <source>Open Logs</source>
        <translation>Günlükleri Aç</translation>
    </message>
    <message>
        <source>Account: checking...</source>
        <translation>Hesap: denetleniyor...</translation>
    </message>
    <message>
        <source>Logout</source>
        <translation>Çıkış Yap</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Tovra: daemon unavailable</source>
        <translation>Tovra: hizmet kullanılamıyor</translation>
    </message>
    <message>
        <source>daemon unavailable</source>
        <translation>hizmet kullanılamıyor</translation>
    </message>
    <message>
        <source>Account: unavailable</source>
        <translation>Hesap: kullanılamıyor</translation>
    </message>
    <message>
        <source>Tovra - daemon unavailable</source>
        <translation>Tovra - hizmet kullanılamıyor</translation>
    </message>
    <message>
        <source>Tovra: switching to auto...</source>
        <translation>Tovra: Otomatik moda geçiliyor...</translation>
    </message>
    <message>
        <source>Tovra: switching to WireGuard...</source>
        <translation>Tovra: WireGuard moduna geçiliyor...</translation>
    </message>
    <message>
        <source>Tovra: switching to TovraVPN...</source>
        <translation>Tovra: TovraVPN moduna geçiliyor...</translation>
    </message>
    <message>
        <source>Tovra: switching TovraVPN split...</source>
        <extracomment>Switching to the TovraVPN Split mode; name the mode as the Mode page does</extracomment>
        <translation>Tovra: TovraVPN (Bölünmüş) moduna geçiliyor...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy...</source>
        <translation>Tovra: Tovra Proxy moduna geçiliyor...</translation>
    </message>
    <message>
        <source>Tovra: switching to Tovra Proxy Split...</source>
        <translation>Tovra: Tovra Proxy (Bölünmüş) moduna geçiliyor...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>System Proxy: %1</source>
        <translation>Sistem Proxy&apos;si: %1</translation>
    </message>
    <message>
        <source>Local Network: %1</source>
        <translation>Yerel Ağ: %1</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tünel</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>Proxy</translation>
    </message>
    <message>
        <source>Regions use %1: %2</source>
        <translation>Bölgeler (%1): %2</translation>
    </message>
    <message>
        <source>Could not refresh nodes</source>
        <translation>Konumlar yenilenemedi</translation>
    </message>
    <message>
        <source>Could not load nodes</source>
        <translation>Konumlar yüklenemedi</translation>
    </message>
    <message>
        <source>Could not refresh node groups</source>
        <translation>Konum grupları yenilenemedi</translation>
    </message>
    <message>
        <source>Could not load node groups</source>
        <translation>Konum grupları yüklenemedi</translation>
    </message>
    <message>
        <source>Refreshing nodes...</source>
        <translation>Konumlar yenileniyor...</translation>
    </message>
    <message>
        <source>Nodes not loaded</source>
        <translation>Konumlar yüklenmedi</translation>
    </message>
    <message>
        <source>No cached nodes</source>
        <translation>Önbellekte konum yok</translation>
    </message>
    <message>
        <source>No nodes</source>
        <translation>Konum yok</translation>
    </message>
    <message>
        <source>Current: %1</source>
        <translation>Geçerli: %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Refresh Nodes (%1s)</source>
        <translation>Konumları Yenile (%1 sn)</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Konum: %1</translation>
    </message>
    <message>
        <source>Location: %1 · %2</source>
        <translation>Konum: %1 · %2</translation>
    </message>
    <message>
        <source>Current: %1 (stale)</source>
        <translation>Geçerli: %1 (eski)</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grup</translation>
    </message>
    <message>
        <source>less than 1m</source>
        <translation>1 dk&apos;dan az</translation>
    </message>
    <message>
        <source>%1m</source>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>%1h</source>
        <translation>%1 sa</translation>
    </message>
    <message>
        <source>%1h %2m</source>
        <translation>%1 sa %2 dk</translation>
    </message>
    <message>
        <source>%1d</source>
        <translation>%1 g</translation>
    </message>
    <message>
        <source>%1d %2h</source>
        <translation>%1 g %2 sa</translation>
    </message>
    <message>
        <source>Error: %1</source>
        <translation>Hata: %1</translation>
    </message>
    <message>
        <source>Tovra: disconnecting...</source>
        <translation>Tovra: bağlantı kesiliyor...</translation>
    </message>
    <message>
        <source>Tovra: logging out...</source>
        <translation>Tovra: çıkış yapılıyor...</translation>
    </message>
    <message>
        <source>Tovra: updating system proxy...</source>
        <translation>Tovra: sistem proxy&apos;si güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: updating local network routing...</source>
        <translation>Tovra: yerel ağ yönlendirmesi güncelleniyor...</translation>
    </message>
    <message>
        <source>Tovra: enabling kill switch...</source>
        <translation>Tovra: Kill Switch açılıyor...</translation>
    </message>
    <message>
        <source>Tovra: disabling kill switch...</source>
        <translation>Tovra: Kill Switch kapatılıyor...</translation>
    </message>
    <message>
        <source>Tovra: connect failed</source>
        <translation>Tovra: bağlanılamadı</translation>
    </message>
    <message>
        <source>Tovra: disconnect failed</source>
        <translation>Tovra: bağlantı kesilemedi</translation>
    </message>
    <message>
        <source>Logged out</source>
        <translation>Çıkış yapıldı</translation>
    </message>
    <message>
        <source>account operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when signing out failed and the service gave no reason. Word it as a user would understand it: &quot;could not complete the account action&quot;</extracomment>
        <translation>hesap işlemi tamamlanamadı</translation>
    </message>
    <message>
        <source>mode operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when changing the mode failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the mode&quot;</extracomment>
        <translation>mod değiştirilemedi</translation>
    </message>
    <message>
        <source>Mode updated</source>
        <translation>Mod güncellendi</translation>
    </message>
    <message>
        <source>System proxy set to %1</source>
        <translation>Sistem proxy&apos;si: %1</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Güncellendi</translation>
    </message>
    <message>
        <source>Kill switch enabled</source>
        <translation>Kill Switch açıldı</translation>
    </message>
    <message>
        <source>Kill switch disabled</source>
        <translation>Kill Switch kapatıldı</translation>
    </message>
    <message>
        <source>kill-switch operation failed</source>
        <extracomment>Follows &quot;Error: &quot; when turning the kill switch on or off failed and the service gave no reason. Word it as a user would understand it: &quot;could not change the kill switch&quot;</extracomment>
        <translation>Kill Switch değiştirilemedi</translation>
    </message>
    <message>
        <source>connected</source>
        <extracomment>Tunnel state after &quot;Tovra: &quot;: the VPN is connected (not connecting)</extracomment>
        <translation>bağlı</translation>
    </message>
    <message>
        <source>disconnected</source>
        <translation>bağlı değil</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>bağlanıyor</translation>
    </message>
    <message>
        <source>disconnecting</source>
        <translation>bağlantı kesiliyor</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>hazır</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>bilinmiyor</translation>
    </message>
    <message>
        <source>Tovra: %1</source>
        <translation>Tovra: %1</translation>
    </message>
    <message>
        <source>running</source>
        <translation>çalışıyor</translation>
    </message>
    <message>
        <source>Daemon: %1</source>
        <translation>Hizmet: %1</translation>
    </message>
    <message>
        <source>Daemon: %1 (%2)</source>
        <translation>Hizmet: %1 (%2)</translation>
    </message>
    <message>
        <source>Account: cached</source>
        <translation>Hesap: önbellekte</translation>
    </message>
    <message>
        <source>Account: Login Required</source>
        <translation>Hesap: Giriş Gerekli</translation>
    </message>
    <message>
        <source>Account: %1</source>
        <translation>Hesap: %1</translation>
    </message>
    <message>
        <source>Account: logged in</source>
        <translation>Hesap: giriş yapıldı</translation>
    </message>
    <message>
        <source>Kill Switch: %1</source>
        <translation>Kill Switch: %1</translation>
    </message>
    <message>
        <source>off</source>
        <comment>system proxy value</comment>
        <translation>kapalı</translation>
    </message>
    <message>
        <source>on</source>
        <comment>system proxy value</comment>
        <translation>açık</translation>
    </message>
    <message>
        <source>lock</source>
        <comment>system proxy value</comment>
        <translation>kilitli</translation>
    </message>
    <message>
        <source>%1 · Locked: needs the %2 plan</source>
        <extracomment>A node menu entry the plan does not include: the node, then the plan it needs</extracomment>
        <translation>%1 · Kilitli: %2 planı gerekir</translation>
    </message>
</context>
<context>
    <name>UpdateDialog</name>
    <message>
        <source>Could not read the update download status.</source>
        <translation>Güncelleme indirme durumu okunamadı.</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>İndirme iptal edildi.</translation>
    </message>
    <message>
        <source>Could not download the update.</source>
        <translation>Güncelleme indirilemedi.</translation>
    </message>
    <message>
        <source>Download complete. Opening the installer...</source>
        <translation>İndirme tamamlandı. Yükleyici açılıyor...</translation>
    </message>
    <message>
        <source>The download link is unavailable.</source>
        <translation>İndirme bağlantısı kullanılamıyor.</translation>
    </message>
    <message>
        <source>Could not open the update download link.</source>
        <translation>Güncelleme indirme bağlantısı açılamadı.</translation>
    </message>
    <message>
        <source>The download link opened in your browser. Tovra will not run the installer automatically.</source>
        <translation>İndirme bağlantısı tarayıcınızda açıldı. Tovra yükleyiciyi otomatik olarak çalıştırmayacak.</translation>
    </message>
    <message>
        <source>Tovra Update</source>
        <translation>Tovra Güncellemesi</translation>
    </message>
    <message>
        <source>Tovra must be updated before you can connect. Download the installer or exit Tovra.</source>
        <translation>Bağlanabilmeniz için Tovra&apos;nın güncellenmesi gerekiyor. Yükleyiciyi indirin veya Tovra&apos;dan çıkın.</translation>
    </message>
    <message>
        <source>What&apos;s New</source>
        <translation>Yenilikler</translation>
    </message>
    <message>
        <source>Download progress</source>
        <translation>İndirme ilerlemesi</translation>
    </message>
    <message>
        <source>Hide this update</source>
        <extracomment>Button (shown as a link) that stops offering this update</extracomment>
        <translation>Bu güncellemeyi atla</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>Button that closes the dialog and keeps the update for later</extracomment>
        <translation>Şimdi Değil</translation>
    </message>
    <message>
        <source>Exit Tovra</source>
        <extracomment>Button that quits Tovra when the update is required</extracomment>
        <translation>Tovra&apos;dan Çık</translation>
    </message>
    <message>
        <source>Exit Tovra without updating</source>
        <translation>Güncellemeden Tovra&apos;dan çık</translation>
    </message>
    <message>
        <source>Open Download Link</source>
        <extracomment>Button that opens the installer download page in the browser</extracomment>
        <translation>İndirme Bağlantısını Aç</translation>
    </message>
    <message>
        <source>Open the Tovra update download link</source>
        <translation>Tovra güncellemesinin indirme bağlantısını aç</translation>
    </message>
    <message>
        <source>A required update is available</source>
        <translation>Zorunlu bir güncelleme var</translation>
    </message>
    <message>
        <source>A new Tovra update is available</source>
        <translation>Yeni bir Tovra güncellemesi var</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>En son</translation>
    </message>
    <message>
        <source>Current version: %1
Available version: %2</source>
        <translation>Geçerli sürüm: %1
Yeni sürüm: %2</translation>
    </message>
    <message>
        <source>Release notes are unavailable.</source>
        <translation>Sürüm notları kullanılamıyor.</translation>
    </message>
    <message>
        <source>Downloading %1 of %2</source>
        <translation>İndiriliyor: %1 / %2</translation>
    </message>
    <message>
        <source>Downloading update...</source>
        <translation>Güncelleme indiriliyor...</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>Preparing the download...</source>
        <translation>İndirme hazırlanıyor...</translation>
    </message>
    <message>
        <source>Verifying the download...</source>
        <translation>İndirilen dosya doğrulanıyor...</translation>
    </message>
    <message>
        <source>Canceling the download...</source>
        <translation>İndirme iptal ediliyor...</translation>
    </message>
    <message>
        <source>Download in Background</source>
        <extracomment>Button that hides the dialog while the installer downloads</extracomment>
        <translation>Arka Planda İndir</translation>
    </message>
    <message>
        <source>Download the latest installer without interrupting your current session.</source>
        <translation>En son yükleyiciyi, geçerli oturumunuzu kesintiye uğratmadan indirin.</translation>
    </message>
    <message>
        <source>Hide this window while the update downloads</source>
        <translation>Güncelleme inerken bu pencereyi gizle</translation>
    </message>
    <message>
        <source>Canceling...</source>
        <extracomment>Button while the download is being cancelled</extracomment>
        <translation>İptal ediliyor...</translation>
    </message>
    <message>
        <source>Cancel the update download</source>
        <translation>Güncelleme indirmesini iptal et</translation>
    </message>
    <message>
        <source>Cancel Download</source>
        <extracomment>Button</extracomment>
        <translation>İndirmeyi İptal Et</translation>
    </message>
    <message>
        <source>Opening Installer...</source>
        <extracomment>Button while the downloaded installer opens</extracomment>
        <translation>Yükleyici Açılıyor...</translation>
    </message>
    <message>
        <source>Retry Download</source>
        <extracomment>Button</extracomment>
        <translation>Yeniden Dene</translation>
    </message>
    <message>
        <source>Retry the update download</source>
        <translation>Güncelleme indirmesini yeniden dene</translation>
    </message>
    <message>
        <source>Download Update</source>
        <extracomment>Button that downloads and opens the installer</extracomment>
        <translation>Güncellemeyi İndir</translation>
    </message>
    <message>
        <source>Download and install the Tovra update</source>
        <translation>Tovra güncellemesini indir ve yükle</translation>
    </message>
    <message>
        <source>Retrying the download...</source>
        <translation>İndirme yeniden deneniyor...</translation>
    </message>
</context>
<context>
    <name>UpdatesSection</name>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Check for updates</source>
        <extracomment>Button</extracomment>
        <translation>Güncellemeleri denetle</translation>
    </message>
    <message>
        <source>Tovra for Linux</source>
        <translation>Linux için Tovra</translation>
    </message>
    <message>
        <source>The version of this app.</source>
        <translation>Bu uygulamanın sürümü.</translation>
    </message>
    <message>
        <source>Ask the Tovra service for a newer version.</source>
        <translation>Tovra hizmetine daha yeni bir sürüm olup olmadığını sorar.</translation>
    </message>
    <message>
        <source>%1 (build %2)</source>
        <translation>%1 (derleme %2)</translation>
    </message>
</context>
<context>
    <name>VpnKillSwitchRow</name>
    <message>
        <source>Kill Switch</source>
        <translation>Kill Switch</translation>
    </message>
</context>
<context>
    <name>VpnPage</name>
    <message>
        <source>Connect</source>
        <extracomment>Button that connects the VPN</extracomment>
        <translation>Bağlan</translation>
    </message>
    <message>
        <source>Sign In</source>
        <extracomment>Button that opens the account page to sign in</extracomment>
        <translation>Giriş Yap</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that stops a connection attempt</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <extracomment>Button that disconnects the VPN</extracomment>
        <translation>Bağlantıyı Kes</translation>
    </message>
    <message>
        <source>Disconnecting…</source>
        <extracomment>Button while the VPN disconnects</extracomment>
        <translation>Bağlantı kesiliyor…</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Service unavailable</source>
        <translation>Hizmet kullanılamıyor</translation>
    </message>
    <message>
        <source>Waiting for the Tovra service to answer.</source>
        <translation>Tovra hizmetinin yanıt vermesi bekleniyor.</translation>
    </message>
    <message>
        <source>Signed out</source>
        <translation>Giriş yapılmadı</translation>
    </message>
    <message>
        <source>Sign in to your Tovra account to connect.</source>
        <translation>Bağlanmak için Tovra hesabınızla giriş yapın.</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Last location</source>
        <translation>Son konum</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>Bağlı</translation>
    </message>
    <message>
        <source>Your traffic goes through the Tovra tunnel.</source>
        <translation>Trafiğiniz Tovra tünelinden geçiyor.</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>Bağlanıyor…</translation>
    </message>
    <message>
        <source>Setting up the tunnel.</source>
        <translation>Tünel kuruluyor.</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Bağlanıyor: %1</translation>
    </message>
    <message>
        <source>Closing the tunnel.</source>
        <translation>Tünel kapatılıyor.</translation>
    </message>
    <message>
        <source>Disconnected</source>
        <translation>Bağlı değil</translation>
    </message>
    <message>
        <source>Kill Switch blocks traffic until you connect.</source>
        <translation>Kill Switch, siz bağlanana kadar trafiği engeller.</translation>
    </message>
    <message>
        <source>Your traffic is not protected.</source>
        <translation>Trafiğiniz korunmuyor.</translation>
    </message>
    <message>
        <source>Connected to %1</source>
        <translation>Bağlandı: %1</translation>
    </message>
    <message>
        <source>Connection failed: %1</source>
        <translation>Bağlantı başarısız oldu: %1</translation>
    </message>
</context>
<context>
    <name>VpnRecentLocations</name>
    <message>
        <source>Clear</source>
        <extracomment>Button that empties the list of recent locations</extracomment>
        <translation>Temizle</translation>
    </message>
    <message>
        <source>Locations you connect to appear here.</source>
        <translation>Bağlandığınız konumlar burada görünür.</translation>
    </message>
    <message>
        <source>Recent locations</source>
        <translation>Son konumlar</translation>
    </message>
    <message>
        <source>Clear recent locations</source>
        <translation>Son konumları temizle</translation>
    </message>
    <message>
        <source>Connect to %1</source>
        <translation>Bağlan: %1</translation>
    </message>
</context>
<context>
    <name>VpnStatusCard</name>
    <message>
        <source>Connected for %1</source>
        <translation>Bağlantı süresi: %1</translation>
    </message>
    <message>
        <source>Mode: %1</source>
        <translation>Mod: %1</translation>
    </message>
</context>
<context>
    <name>WindowController</name>
    <message>
        <source>Account operation failed</source>
        <extracomment>Shown when signing in or out failed without a reason. Word it as a user would understand it: &quot;Could not complete the account action&quot;</extracomment>
        <translation>Hesap işlemi tamamlanamadı</translation>
    </message>
    <message>
        <source>Could not open link</source>
        <translation>Bağlantı açılamadı</translation>
    </message>
    <message>
        <source>Log directory is unavailable</source>
        <translation>Günlük klasörü kullanılamıyor</translation>
    </message>
    <message>
        <source>Log directory does not exist: %1</source>
        <translation>Günlük klasörü mevcut değil: %1</translation>
    </message>
    <message>
        <source>Could not open log directory: %1</source>
        <translation>Günlük klasörü açılamadı: %1</translation>
    </message>
</context>
<context>
    <name>WindowShortcuts</name>
    <message>
        <source>Ctrl+1</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+1</translation>
    </message>
    <message>
        <source>Show the VPN page</source>
        <translation>VPN sayfasını göster</translation>
    </message>
    <message>
        <source>Ctrl+2</source>
        <translation>Ctrl+2</translation>
    </message>
    <message>
        <source>Show the Locations page</source>
        <translation>Konumlar sayfasını göster</translation>
    </message>
    <message>
        <source>Ctrl+3</source>
        <translation>Ctrl+3</translation>
    </message>
    <message>
        <source>Show the Mode page</source>
        <translation>Mod sayfasını göster</translation>
    </message>
    <message>
        <source>Ctrl+4</source>
        <translation>Ctrl+4</translation>
    </message>
    <message>
        <source>Show the Settings page</source>
        <translation>Ayarlar sayfasını göster</translation>
    </message>
    <message>
        <source>Ctrl+5</source>
        <translation>Ctrl+5</translation>
    </message>
    <message>
        <source>Show the Account page</source>
        <translation>Hesap sayfasını göster</translation>
    </message>
    <message>
        <source>Search: the quick connect field on the VPN page, the list on the Locations page</source>
        <translation>Ara: VPN sayfasında hızlı bağlantı alanı, Konumlar sayfasında liste</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <extracomment>Keyboard shortcut, in Qt&apos;s key names: keep it unless the key is awkward to reach</extracomment>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Refresh locations</source>
        <translation>Konumları yenile</translation>
    </message>
    <message>
        <source>Close the window; Tovra stays in the tray</source>
        <translation>Pencereyi kapat; Tovra sistem tepsisinde kalır</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>Quit Tovra</source>
        <translation>Tovra&apos;dan çık</translation>
    </message>
    <message>
        <source>Close a list, menu or dialog</source>
        <translation>Listeyi, menüyü veya iletişim kutusunu kapat</translation>
    </message>
    <message>
        <source>Show these keyboard shortcuts</source>
        <translation>Bu klavye kısayollarını göster</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A control&apos;s tool tip: what it does, then its keyboard shortcut</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
</TS>
