--==== top.vhd ====
--top d
--


-- (legal notice)




--pair HELD=1 d q
--


--stage HELD=1 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg7i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg7i1;

 ARCHITECTURE RTL OF top_mg7i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s1_w_lg_d1w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s1_w_lg_w_lg_d1w2w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop0 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_d1w(i) <= d(i) AND keep(i);
	END GENERATE loop0;
	loop1 : FOR i IN 0 TO 3 GENERATE 
		wire_s1_w_lg_w_lg_d1w2w(i) <= wire_s1_w_lg_d1w(i) XOR en;
	END GENERATE loop1;
	keep <= "1110";
	q <= wire_s1_w_lg_w_lg_d1w2w;

 END RTL; --top_mg7i1


--stage HELD=2 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg8i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg8i1;

 ARCHITECTURE RTL OF top_mg8i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s2_w_lg_d3w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_w_lg_w_lg_d3w4w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop2 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_d3w(i) <= d(i) AND keep(i);
	END GENERATE loop2;
	loop3 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_w_lg_d3w4w(i) <= wire_s2_w_lg_d3w(i) XOR en;
	END GENERATE loop3;
	keep <= "1101";
	q <= wire_s2_w_lg_w_lg_d3w4w;

 END RTL; --top_mg8i1

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgc71 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mgc71;

 ARCHITECTURE RTL OF top_mgc71 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mg7i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg8i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	q <= wire_s2_q;
	s1 :  top_mg7i1
	  PORT MAP ( 
		d => d,
		en => wire_vcc,
		q => wire_s1_q
	  );
	s2 :  top_mg8i1
	  PORT MAP ( 
		d => wire_s1_q,
		en => wire_vcc,
		q => wire_s2_q
	  );

 END RTL; --top_mgc71


--pair HELD=2 d q
--


--stage HELD=3 d en q
--

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mg9i1 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 en	:	IN  STD_LOGIC := '1';
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mg9i1;

 ARCHITECTURE RTL OF top_mg9i1 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_s2_w_lg_d5w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_w_lg_w_lg_d5w6w	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  keep :	STD_LOGIC_VECTOR (3 DOWNTO 0);
 BEGIN

	loop4 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_d5w(i) <= d(i) AND keep(i);
	END GENERATE loop4;
	loop5 : FOR i IN 0 TO 3 GENERATE 
		wire_s2_w_lg_w_lg_d5w6w(i) <= wire_s2_w_lg_d5w(i) XOR en;
	END GENERATE loop5;
	keep <= "1100";
	q <= wire_s2_w_lg_w_lg_d5w6w;

 END RTL; --top_mg9i1

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top_mgd71 IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top_mgd71;

 ARCHITECTURE RTL OF top_mgd71 IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_vcc	:	STD_LOGIC;
	 SIGNAL  wire_s1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_s2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mg8i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mg9i1
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		en	:	IN  STD_LOGIC := '1';
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	wire_vcc <= '1';
	q <= wire_s2_q;
	s1 :  top_mg8i1
	  PORT MAP ( 
		d => d,
		en => wire_vcc,
		q => wire_s1_q
	  );
	s2 :  top_mg9i1
	  PORT MAP ( 
		d => wire_s1_q,
		en => wire_vcc,
		q => wire_s2_q
	  );

 END RTL; --top_mgd71

--synthesis_resources = 
 LIBRARY ieee;
 USE ieee.std_logic_1164.all;

 ENTITY  top IS 
	 PORT 
	 ( 
		 d	:	IN  STD_LOGIC_VECTOR (3 DOWNTO 0);
		 q	:	OUT  STD_LOGIC_VECTOR (3 DOWNTO 0)
	 ); 
 END top;

 ARCHITECTURE RTL OF top IS

	 ATTRIBUTE synthesis_lumenbox : natural;
	 ATTRIBUTE synthesis_lumenbox OF RTL : ARCHITECTURE IS 1;
	 SIGNAL  wire_p1_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 SIGNAL  wire_p2_q	:	STD_LOGIC_VECTOR (3 DOWNTO 0);
	 COMPONENT  top_mgc71
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
	 COMPONENT  top_mgd71
	 PORT
	 ( 
		d	:	IN  STD_LOGIC_VECTOR(3 DOWNTO 0);
		q	:	OUT  STD_LOGIC_VECTOR(3 DOWNTO 0)
	 ); 	 END COMPONENT;
 BEGIN

	q <= wire_p2_q;
	p1 :  top_mgc71
	  PORT MAP ( 
		d => d,
		q => wire_p1_q
	  );
	p2 :  top_mgd71
	  PORT MAP ( 
		d => wire_p1_q,
		q => wire_p2_q
	  );

 END RTL; --top
--VALID FILE
